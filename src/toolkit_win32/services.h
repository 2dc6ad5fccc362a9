// Win32Services: the runtime's services on Windows: the system's clipboard, registry and disk, message and input boxes,
// the printer, the pointer and the message loop of the toolkit.
#pragma once

#include <memory>

#include "host/services.h"

namespace corvane::toolkit_win32 {

class Win32Toolkit;

class Win32Services {
 public:
  // [toolkit] must outlive it. App.Path is the folder of the file that holds this code.
  explicit Win32Services(Win32Toolkit& toolkit);
  ~Win32Services();
  operator host::Services() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace corvane::toolkit_win32
