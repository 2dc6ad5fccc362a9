// AddInHost: the environment's side of one add-in: it finds it in its list, creates it and tells it what happens.
#pragma once

#include "tests/stage/add_in_list.h"
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

  // By its entry in the list: the class that its key names, then the interfaces that the environment asks for.
  HRESULT Create();
  HRESULT OnConnection(ConnectMode mode);
  HRESULT OnStartupComplete();
  HRESULT OnAddInsUpdate();
  HRESULT OnBeginShutdown();
  HRESULT OnDisconnection(RemoveMode mode);
  void Release();

  // What the environment does: at its start (S_FALSE where the add-in is not to be loaded then), when the user loads or
  // unloads the add-in, at its end.
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
  ListedAddIn entry_;
  ComPointer<Extensibility2> add_in_;
  bool connected_ = false;
};

}  // namespace corvane::stage
