// Surroundings: everything around one run of the engine, each part an interface.
#pragma once

#include <string>

#include "script/debug_window.h"
#include "script/form_pages.h"
#include "script/ide_commands.h"
#include "script/outside.h"
#include "script/platform.h"
#include "script/result_window.h"
#include "script/workshop_window.h"

namespace corvane::script {

struct Surroundings {
  host::Services& services;
  IdeAccess& ide;
  Workshop& workshop;
  ScriptObjectFactory& objects;
  script::Clock& clock;
  IdeCommands& changes;
  WorkshopWindow& window;
  FormPages& forms;
  DebugWindow& debug;
  ResultWindow& result;
  script::Platform& platform;
  std::string& paramExchange;  // parameters on their way from one script to another
};

}  // namespace corvane::script
