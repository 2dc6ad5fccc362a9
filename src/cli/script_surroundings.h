// The machine around a script on the command line.
#pragma once

#include <memory>
#include <string>

#include "script/outside.h"
#include "script/platform.h"

namespace corvane::cli {

// Deletes files; starts nothing.
class DeletingPlatform : public script::Platform {
 public:
  double Shell(const std::string&) override { throw runtime::Error(runtime::kFileNotFound); }
  void Open(const std::string&) override { throw runtime::Error(runtime::kFileNotFound); }
  void Kill(const std::string& path) override;
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
