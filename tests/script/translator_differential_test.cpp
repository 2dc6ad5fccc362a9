// The engine's translator and the plain one do the same.
#include <gtest/gtest.h>
#include <map>

#include "script/prepare_source.h"
#include "script/translator.h"
#include "tests/script/generated_code.h"
#include "tests/script/plain_translator.h"
#include "tests/script/recorded_errors.h"

namespace corvane::script {
namespace {

struct Outcome {
  std::string cleaned, flat;
  std::vector<RecordedError> errors;
  Counters counters;
  bool stopped = false;
  bool operator==(const Outcome&) const = default;
};

template <class Prepare, class Translate>
Outcome TranslateBy(const std::string& code, size_t cancelled, Prepare prepare, Translate translate) {
  ScriptState state;
  RecordedErrors report(state, cancelled);
  Outcome outcome;
  outcome.cleaned = prepare(code, report);
  std::string text = outcome.cleaned;
  outcome.flat = translate(text, state, report);
  outcome.errors = report.errors;
  outcome.counters = state.counters;
  outcome.stopped = state.stopFlag;
  return outcome;
}

testing::AssertionResult SameForBoth(const std::string& code, size_t cancelled) {
  const Outcome engine = TranslateBy(code, cancelled, PrepareSource, TranslateCode);
  const Outcome plain = TranslateBy(code, cancelled, PlainPrepareSource, PlainTranslateCode);
  if (engine == plain) return testing::AssertionSuccess();
  const auto last = [](const Outcome& outcome) {
    return outcome.errors.empty() ? RecordedError() : outcome.errors.back();
  };
  return testing::AssertionFailure() << testing::PrintToString(code) << "\nengine "
                                     << testing::PrintToString(engine.flat) << "\n  " << engine.errors.size()
                                     << last(engine).message << last(engine).currentLine << "\nplain  "
                                     << testing::PrintToString(plain.flat) << "\n  " << plain.errors.size()
                                     << last(plain).message << last(plain).currentLine << "\ncleaned "
                                     << (engine.cleaned == plain.cleaned ? "the same" : "differs");
}

TEST(TranslatorDifferential, GeneratedPiecesAnsweredWithOk) {
  for (uint64_t seed = 0; seed < 4000; ++seed) {
    const std::string code = GeneratedCode(seed).Piece(seed % 3 == 0 ? 30 : 4);
    ASSERT_TRUE(SameForBoth(code, RecordedErrors::kNever)) << "seed " << seed;
  }
}

TEST(TranslatorDifferential, GeneratedPiecesCancelledAtOneOfTheirErrors) {
  for (uint64_t seed = 0; seed < 2000; ++seed) {
    const std::string code = GeneratedCode(seed + 100'000).Piece(12);
    ASSERT_TRUE(SameForBoth(code, seed % 3)) << "seed " << seed;
  }
}

// Else the comparison says little.
TEST(TranslatorDifferential, TheGeneratedPiecesMeetEveryError) {
  std::map<std::string, int> met;
  for (uint64_t seed = 0; seed < 2000; ++seed)
    for (const RecordedError& error :
         TranslateBy(GeneratedCode(seed).Piece(20), RecordedErrors::kNever, PrepareSource, TranslateCode).errors)
      ++met[error.message];
  for (const char* message :
       {"There is not a pair for \" symbol.", "Brackets Error.", "NEXT  without For or While operators",
        "End If operator error.", "Select Case: error", "Syntax Error Use:For i=1 to 12 [step=-1]",
        "Error Function definition", "There is no Function for End Function operator.",
        "There is no Function for Exit Function operator.", "There are not ']]' symbols."})
    EXPECT_GT(met[message], 10) << message;
}

}  // namespace
}  // namespace corvane::script
