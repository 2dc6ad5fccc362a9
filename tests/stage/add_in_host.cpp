#include "tests/stage/add_in_host.h"

#include <ocidl.h>

#include "tests/stage/texts.h"

namespace corvane::stage {

namespace {

constexpr char kName[] = "Corvane - 2000";  // in the list

// No entries. The environment hands it over by reference.
class NoCustomEntries {
 public:
  ~NoCustomEntries() { SafeArrayDestroy(array_); }
  SAFEARRAY** Out() { return &array_; }

 private:
  SAFEARRAY* array_ = SafeArrayCreateVector(VT_VARIANT, 0, 0);
};

}  // namespace

HRESULT AddInHost::Create() {
  const auto listed = FindListed(kName);
  if (!listed) return REGDB_E_CLASSNOTREG;
  entry_ = *listed;
  CLSID id;
  HRESULT code = CLSIDFromProgID(entry_.prog_id.c_str(), &id);
  if (FAILED(code)) return code;
  ComPointer<IUnknown> object, other;
  code = CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, object.OutVoid());
  if (FAILED(code)) return code;
  for (const IID& asked : {kExtensibility, IID_IProvideClassInfo, IID_IConnectionPointContainer, IID_IPersist})
    object->QueryInterface(asked, other.OutVoid());
  return object->QueryInterface(kExtensibility2, add_in_.OutVoid());
}

HRESULT AddInHost::OnConnection(ConnectMode mode) {
  NoCustomEntries custom;
  const auto root = stage_.Root();
  const auto entry = stage_.Publish(std::make_shared<AddInEntry>(
      AddInEntry{.description = entry_.description, .prog_id = Ansi(entry_.prog_id), .guid = {}}));
  connected_ = true;
  return add_in_->OnConnection(root.Get(), mode, entry.Get(), custom.Out());
}

HRESULT AddInHost::OnStartupComplete() {
  return add_in_->OnStartupComplete(nullptr);
}

HRESULT AddInHost::OnAddInsUpdate() {
  NoCustomEntries custom;
  return add_in_->OnAddInsUpdate(custom.Out());
}

HRESULT AddInHost::OnBeginShutdown() {
  return add_in_->OnBeginShutdown(nullptr);
}

HRESULT AddInHost::OnDisconnection(RemoveMode mode) {
  NoCustomEntries custom;
  connected_ = false;
  return add_in_->OnDisconnection(mode, custom.Out());
}

void AddInHost::Release() {
  if (add_in_ && connected_) OnDisconnection(kUserClosed);
  add_in_.Reset();
}

HRESULT AddInHost::StartUp() {
  const auto listed = FindListed(kName);
  if (!listed || !listed->IsLoadedAtStartup()) return S_FALSE;
  HRESULT code = Create();
  if (SUCCEEDED(code)) code = OnConnection(kStartup);
  if (SUCCEEDED(code)) code = OnAddInsUpdate();
  return SUCCEEDED(code) ? OnStartupComplete() : code;
}

HRESULT AddInHost::LoadByUser() {
  HRESULT code = Create();
  if (SUCCEEDED(code)) code = OnConnection(kAfterStartup);
  return SUCCEEDED(code) ? OnAddInsUpdate() : code;
}

HRESULT AddInHost::UnloadByUser() {
  const HRESULT code = OnDisconnection(kUserClosed);
  Release();
  return code;
}

HRESULT AddInHost::ShutDown() {
  HRESULT code = OnBeginShutdown();
  if (SUCCEEDED(code)) code = OnDisconnection(kHostShutdown);
  Release();
  return code;
}

}  // namespace corvane::stage
