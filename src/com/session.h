// Session: the add-in from its connection to its disconnection, and the home that it runs in.
#pragma once

#include <functional>
#include <memory>

#include "addin/connect.h"
#include "com/com_api.h"
#include "com/module_use.h"
#include "com/script_home.h"

namespace corvane::com {

// The windows and the services of one session.
class Home {
 public:
  virtual ~Home() = default;
  virtual host::Services& Services() = 0;
  virtual forms::Toolkit& Toolkit() = 0;
  // The environment's main window: the add-in's windows stand in front of it and modal ones disable it.
  virtual void SetHostWindow(HWND window) = 0;
  // Whether code of the library's windows is running on the stack: an act of the user, or more than that.
  virtual bool IsBusy() { return Toolkit().IsInAct(); }
};
using NewHome = std::function<std::unique_ptr<Home>()>;

// Windows of Win32 in the environment's process, texts in the system's code page.
std::unique_ptr<Home> NewWin32Home();

class Session {
 public:
  explicit Session(std::unique_ptr<Home> home);

  // [application] is the environment's root.
  void Connect(IDispatch* application, addin::ConnectMode mode);
  // Closes every window, and stops the script that runs. Handlers that are running go on behind it.
  void Disconnect(addin::DisconnectMode mode);
  addin::Connect& AddIn() { return connect_; }
  // Calls the add-in from outside its windows. A disconnection in [act] lets the session live to its end. Throws what
  // [act] throws of host::Error.
  void Run(const std::function<void(addin::Connect& add_in)>& act);
  // The script engine of this connection, made when it is asked for. Error 91 without an environment.
  ScriptHome& Scripts();
  bool IsBusy() { return home_->IsBusy(); }

 private:
  const ModuleUse use_;
  std::unique_ptr<Home> home_;
  addin::Connect connect_;
  std::unique_ptr<ScriptHome> scripts_;
};

// Destroys [session] as soon as nothing of its windows is running: at once, or from the environment's message loop.
void LetGo(std::unique_ptr<Session> session);

}  // namespace corvane::com
