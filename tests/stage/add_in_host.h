// AddInHost: the environment's side of one add-in: it creates it by its name in the registry and tells it what happens.
#pragma once

#include "tests/stage/com_pointer.h"
#include "tests/stage/extensibility.h"
#include "tests/stage/stage.h"

namespace corvane::stage {

class AddInHost {
 public:
  explicit AddInHost(Stage& stage) : stage_(stage) {}
  // Disconnects and lets go of the add-in.
  ~AddInHost() { Release(); }
  AddInHost(const AddInHost&) = delete;

  // CoCreateInstance, then the interfaces that the environment asks for.
  HRESULT Create();
  HRESULT OnConnection(ConnectMode mode);
  HRESULT OnStartupComplete();
  HRESULT OnAddInsUpdate();
  HRESULT OnBeginShutdown();
  HRESULT OnDisconnection(RemoveMode mode);
  void Release();

  // What the environment does: at its start, when the user loads or unloads the add-in, at its end.
  HRESULT StartUp();
  HRESULT LoadByUser();
  HRESULT UnloadByUser();
  HRESULT ShutDown();
  bool IsConnected() const { return connected_; }

  Extensibility2* AddIn() const { return add_in_.Get(); }

  // Lets the system unload libraries that nobody uses.
  static void FreeLibraries() { CoFreeUnusedLibrariesEx(0, 0); }

 private:
  Stage& stage_;
  ComPointer<Extensibility2> add_in_;
  bool connected_ = false;
};

}  // namespace corvane::stage
