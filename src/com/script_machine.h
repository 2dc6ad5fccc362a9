// What scripts ask of the machine that Visual Basic runs on.
#pragma once

#include "script/outside.h"
#include "script/platform.h"

namespace corvane::com {

class ScriptMachine : public script::Platform, public script::Clock {
 public:
  // The number of the process. Error 53 for a program that is not there, 5 for one that cannot be started.
  double Shell(const std::string& program) override;
  // A failure is not told.
  void Open(const std::string& file) override;
  // Error 70 for a file in use, 75 for one that is protected.
  void Kill(const std::string& path) override;
  // Whole seconds, as Visual Basic counts.
  double Now() override;
};

}  // namespace corvane::com
