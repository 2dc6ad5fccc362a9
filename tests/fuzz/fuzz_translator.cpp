// Any bytes as a piece of code: the engine's translator and the plain one agree, what they make is bounded, and the
// check of scripts finds its way through.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "script/flat_to_text.h"
#include "script/line_comments.h"
#include "script/prepare_source.h"
#include "script/script_check.h"
#include "script/translator.h"
#include "tests/script/plain_translator.h"
#include "tests/script/recorded_errors.h"

namespace {

using namespace corvane::script;

// The plain form copies its text at each step.
constexpr size_t kLongest = 2000;
// A character makes at most the items of a loop around it, and a label with the numbers of four counters.
constexpr size_t kGrowth = 400;

void Require(bool holds) {
  if (!holds) std::abort();
}

void Compare(const std::string& code, size_t cancelled) {
  ScriptState state, plain_state;
  RecordedErrors errors(state, cancelled), plain_errors(plain_state, cancelled);
  std::string text = PrepareSource(code, errors), plain_text = PlainPrepareSource(code, plain_errors);
  Require(text == plain_text);
  const std::string flat = TranslateCode(text, state, errors);
  Require(flat == PlainTranslateCode(plain_text, plain_state, plain_errors));
  Require(errors.errors == plain_errors.errors);
  Require(state.counters == plain_state.counters);
  Require(flat.size() <= kGrowth * (code.size() + 1));
  Require(FlatToText(flat).size() <= 2 * flat.size());
  for (const RecordedError& error : errors.errors) FlatToText(error.currentLine);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), std::min(size, kLongest));
  for (size_t cancelled : {RecordedErrors::kNever, size_t{0}, size_t{2}}) Compare(text, cancelled);
  Compare(CodeOfLines(text), RecordedErrors::kNever);
  FlatToText(text);
  const auto nothing = [](const std::string&) { return std::nullopt; };
  CheckScript(ReadScriptSource(text, nothing));
  const ScriptSource block = ReadScriptSource("CODE{\r\n<%" + text, nothing);
  Require(block.has_block);
  CheckScript(block);
  return 0;
}
