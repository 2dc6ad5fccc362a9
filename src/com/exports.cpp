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

bool Is(LPCWSTR word, LPCWSTR wanted) {
  return lstrcmpiW(word ? word : L"", wanted) == 0;
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
  if (Is(word, L"entry")) return install ? RegisterEntry() : UnregisterEntry();
  const bool machine = Is(word, L"machine");
  if (!machine && !Is(word, L"user") && !Is(word, L"")) return E_INVALIDARG;
  const Scope scope = machine ? Scope::Machine : Scope::User;
  return install ? RegisterFor(scope) : Unregister(scope);
}
