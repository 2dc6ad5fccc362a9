// TranslatedPieces: pieces of code as programs. A piece that comes again under the same counters is not translated
// again.
#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "script/flat_program.h"
#include "script/script_state.h"

namespace corvane::script {

class TranslatedPieces {
 public:
  TranslatedPieces(ScriptState& state, ErrorReport& errors) : state_(state), errors_(errors) {}

  // Cleaned and translated; nothing for a piece without content. Moves the counters.
  std::shared_ptr<FlatProgram> Translate(const std::string& text);
  // Whether the piece that was translated last reports an error.
  bool Reported() const { return reported_; }
  // A generated statement, which needs no cleaning.
  std::shared_ptr<FlatProgram> TranslateStatement(const std::string& text);

 private:
  struct Translated {
    Counters after;
    std::shared_ptr<FlatProgram> program;
  };
  using Kept = std::unordered_map<std::string, Translated>;  // by text and counters
  template <class Cleaned>
  std::shared_ptr<FlatProgram> TranslateOnce(Kept& kept, const std::string& text, Cleaned&& cleaned);
  std::string Key(const std::string& text) const;
  void Keep(Kept& kept, std::string key, Translated translated);

  ScriptState& state_;
  ErrorReport& errors_;
  Kept pieces_, statements_;
  size_t kept_size_ = 0;
  bool reported_ = false;
};

}  // namespace corvane::script
