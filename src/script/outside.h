// Outside: the world that the language reaches, each part of it an interface.
#pragma once

#include <memory>
#include <string>

#include "host/services.h"
#include "script/cell.h"
#include "script/dialogs.h"
#include "script/ide_access.h"
#include "script/workshop.h"

namespace corvane::script {

// An object of a library, called by the names of its methods. It gets the VBE object with each command.
class ScriptObject {
 public:
  virtual ~ScriptObject() = default;
  virtual Cell Command(const std::string& command) = 0;
  // SetConnection with what GetConnection of [source] gives.
  virtual Cell SetConnection(ScriptObject& source) = 0;
};

class ScriptObjectFactory {
 public:
  virtual ~ScriptObjectFactory() = default;
  // Throws runtime::Error where the platform's CreateObject fails.
  virtual std::shared_ptr<ScriptObject> CreateObject(const std::string& class_name) = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual double Now() = 0;  // local date and time, as runtime/dates.h counts
};

struct Outside {
  host::Services& services;
  script::IdeAccess& ide;
  script::Dialogs& dialogs;
  script::Workshop& workshop;
  ScriptObjectFactory& objects;
  script::Clock& clock;
};

}  // namespace corvane::script
