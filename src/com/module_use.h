// ModuleUse: what keeps the library loaded. While an object of this kind lives, it must not be unloaded.
#pragma once

#include <string>

#include "com/com_api.h"

namespace corvane::com {

class ModuleUse {
 public:
  ModuleUse() { Add(); }
  ~ModuleUse() { Remove(); }
  ModuleUse(const ModuleUse&) = delete;
  ModuleUse& operator=(const ModuleUse&) = delete;

  // A lock without an object, as a class factory keeps one for its client.
  static void Add();
  static void Remove();
  static long Count();

  // From now on the library stays in the process to its end. A message of its windows may run at any time that it could
  // be unloaded, and each unloading leaves something of the C++ runtime behind.
  static void Pin();
  static bool MayBeUnloaded();
};

// The file that this code was loaded from. Throws the system's error where it cannot be told.
std::wstring ModulePath();

}  // namespace corvane::com
