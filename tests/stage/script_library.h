// ScriptLibrary: a library of objects as scripts call them, registered by name and served from this program.
#pragma once

#include <memory>
#include <string>
#include <vector>
#include <windows.h>

namespace corvane::stage {

class ScriptLibrary {
 public:
  // [prog_id]: "StageLibrary.clsAction".
  explicit ScriptLibrary(const std::wstring& prog_id);
  // Takes the registration back.
  ~ScriptLibrary();
  ScriptLibrary(const ScriptLibrary&) = delete;

  // What its objects have heard: "Command(VBE, text)", "GetConnection()", "SetConnection(text)". Command answers with
  // its text and "!", or with the number 7, True, an Error for "number", "truth", "error"; GetConnection with
  // "connection".
  const std::vector<std::string>& Calls() const { return heard_->calls; }
  // Its objects that somebody holds.
  long Objects() const { return heard_->objects; }

  struct Heard {
    std::vector<std::string> calls;
    long objects = 0;
  };

 private:
  const std::wstring key_;
  const std::shared_ptr<Heard> heard_ = std::make_shared<Heard>();
  DWORD served_ = 0;
};

}  // namespace corvane::stage
