// ClassFactory: makes the add-in for who asked the library for its class.
#pragma once

#include "com/com_api.h"
#include "com/module_use.h"
#include "com/session.h"

namespace corvane::com {

class ClassFactory : public IClassFactory {
 public:
  explicit ClassFactory(NewHome new_home) : new_home_(std::move(new_home)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

 private:
  virtual ~ClassFactory() = default;
  const ModuleUse use_;
  NewHome new_home_;
  ULONG references_ = 0;
};

}  // namespace corvane::com
