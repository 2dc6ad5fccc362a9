// The objects that scripts make of the libraries on this machine, called late-bound by the names of their methods.
#pragma once

#include "com/value.h"
#include "script/outside.h"

namespace corvane::com {

class ScriptLibraries : public script::ScriptObjectFactory {
 public:
  // [vbe]: the environment's root, which each command is handed.
  explicit ScriptLibraries(Value vbe) : vbe_(std::move(vbe)) {}
  // Error 429 for a class that is not there or cannot be made.
  std::shared_ptr<script::ScriptObject> CreateObject(const std::string& class_name) override;

 private:
  Value vbe_;
};

}  // namespace corvane::com
