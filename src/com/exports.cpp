#include "com/exports.h"

#include "com/add_in.h"
#include "com/class_factory.h"
#include "com/com_pointer.h"
#include "com/guarded.h"
#include "com/registration.h"

using namespace corvane::com;

namespace {

HRESULT RegisterFor(Scope scope) {
  return Guarded([&] { return Register(scope, ModulePath()); });
}

bool ScopeOf(LPCWSTR word, Scope& scope) {
  const bool machine = word && lstrcmpiW(word, L"machine") == 0;
  scope = machine ? Scope::Machine : Scope::User;
  return machine || !word || !*word || lstrcmpiW(word, L"user") == 0;
}

}  // namespace

HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID id, REFIID iid, void** object) {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (id != kClassOfAddIn) return CLASS_E_CLASSNOTAVAILABLE;
  return Guarded([&] { return ComPointer(new ClassFactory(&NewWin32Home))->QueryInterface(iid, object); });
}

HRESULT STDAPICALLTYPE DllCanUnloadNow() {
  return ModuleUse::MayBeUnloaded() ? S_OK : S_FALSE;
}

HRESULT STDAPICALLTYPE DllRegisterServer() {
  return RegisterFor(Scope::User);
}

HRESULT STDAPICALLTYPE DllUnregisterServer() {
  return Unregister(Scope::User);
}

HRESULT STDAPICALLTYPE DllInstall(BOOL install, LPCWSTR word) {
  Scope scope;
  if (!ScopeOf(word, scope)) return E_INVALIDARG;
  return install ? RegisterFor(scope) : Unregister(scope);
}
