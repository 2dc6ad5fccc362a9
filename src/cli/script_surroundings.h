// The machine around a script on the command line.
#pragma once

#include <memory>
#include <string>

#include "cli/script_boxes.h"
#include "script/outside.h"
#include "script/platform.h"

namespace corvane::cli {

// Deletes files; starts nothing, and says so.
class DeletingPlatform : public script::Platform {
 public:
  explicit DeletingPlatform(ScriptBoxes& boxes) : boxes_(boxes) {}

  double Shell(const std::string& program) override;
  void Open(const std::string& file) override;
  void Kill(const std::string& path) override;

 private:
  ScriptBoxes& boxes_;
};

class NoObjects : public script::ScriptObjectFactory {
 public:
  std::shared_ptr<script::ScriptObject> CreateObject(const std::string&) override {
    throw runtime::Error(runtime::kCannotCreateObject);
  }
};

class LocalClock : public script::Clock {
 public:
  double Now() override;
};

}  // namespace corvane::cli
