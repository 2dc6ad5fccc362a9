// AddIn: the COM object that the environment creates for corvane.Connect.
#pragma once

#include <memory>

#include "com/extensibility.h"
#include "com/module_use.h"
#include "com/session.h"

namespace corvane::com {

// {8C3B7E52-4D1F-4B7A-9E65-2F0C61A7D94B}
inline constexpr CLSID kClassOfAddIn = {0x8C3B7E52, 0x4D1F, 0x4B7A, {0x9E, 0x65, 0x2F, 0x0C, 0x61, 0xA7, 0xD9, 0x4B}};

// Every method of IDTExtensibility2 answers S_OK: what fails inside is shown or passed over, as the add-in does it.
class AddIn : public IDTExtensibility2 {
 public:
  explicit AddIn(NewHome new_home) : new_home_(std::move(new_home)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override;

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD how, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* told, UINT* bad_argument) override;

  HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* application, long connect_mode, IDispatch* add_in,
                                         SAFEARRAY** custom) override;
  HRESULT STDMETHODCALLTYPE OnDisconnection(long remove_mode, SAFEARRAY** custom) override;
  HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) override;
  HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) override;
  HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) override;

  // The session as it is now; null while not connected.
  Session* Current() { return session_.get(); }

 private:
  // One of the methods of IDTExtensibility2. Throws host::Error for arguments of other types.
  HRESULT InvokeMethod(DISPID id, WORD how, const DISPPARAMS& parameters);
  virtual ~AddIn() { Disconnect(addin::DisconnectMode::HostShutdown); }
  void Connect(IDispatch* application, addin::ConnectMode mode);
  void Disconnect(addin::DisconnectMode mode);

  const ModuleUse use_;
  NewHome new_home_;
  std::unique_ptr<Session> session_;
  ULONG references_ = 0;
};

}  // namespace corvane::com
