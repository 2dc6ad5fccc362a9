#include "com/class_factory.h"

#include "com/add_in.h"
#include "com/com_pointer.h"
#include "com/guarded.h"

namespace corvane::com {

HRESULT ClassFactory::QueryInterface(REFIID iid, void** object) {
  if (!object) return E_POINTER;
  const bool offered = iid == IID_IUnknown || iid == IID_IClassFactory;
  *object = offered ? static_cast<IClassFactory*>(this) : nullptr;
  if (!offered) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG ClassFactory::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object) {
  if (!object) return E_POINTER;
  *object = nullptr;
  if (outer) return CLASS_E_NOAGGREGATION;
  ModuleUse::Pin();
  return Guarded([&] { return ComPointer(new AddIn(new_home_))->QueryInterface(iid, object); });
}

HRESULT ClassFactory::LockServer(BOOL lock) {
  lock ? ModuleUse::Add() : ModuleUse::Remove();
  return S_OK;
}

}  // namespace corvane::com
