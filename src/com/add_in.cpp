#include "com/add_in.h"

#include <algorithm>
#include <string_view>

#include "com/add_in_members.h"
#include "com/guarded.h"
#include "com/texts.h"
#include "com/value.h"

namespace corvane::com {

namespace {

constexpr const wchar_t* kMethods[] = {L"OnConnection", L"OnDisconnection", L"OnAddInsUpdate", L"OnStartupComplete",
                                       L"OnBeginShutdown"};
enum MethodId : DISPID { kOnConnection = 1, kOnDisconnection, kOnAddInsUpdate, kOnStartupComplete, kOnBeginShutdown };
constexpr UINT kArguments[] = {4, 2, 1, 1, 1};
constexpr wchar_t kPrefix[] = L"AddinInstance_";  // of the same methods as the add-in's own procedures

DISPID FindMethod(std::wstring_view name) {
  if (CompareStringOrdinal(name.data(), std::min<int>(name.size(), std::size(kPrefix) - 1), kPrefix,
                           std::size(kPrefix) - 1, TRUE) == CSTR_EQUAL)
    name.remove_prefix(std::size(kPrefix) - 1);
  for (size_t i = 0; i < std::size(kMethods); ++i)
    if (lstrcmpiW(name.data(), kMethods[i]) == 0) return static_cast<DISPID>(i + 1);
  return DISPID_UNKNOWN;
}

// The argument at [position] from 0; they stand from the last to the first.
Value ArgumentAt(const DISPPARAMS& parameters, UINT position) {
  Value value;
  Check(VariantCopyInd(value.Out(), &parameters.rgvarg[parameters.cArgs - 1 - position]));
  return value;
}

// Where there is no session yet, there is no message box of ours either.
void Tell(const std::string& description) {
  MessageBoxW(nullptr, ToWide(description).c_str(), ToWide(addin::kFriendlyName).c_str(), MB_OK | MB_TASKMODAL);
}

}  // namespace

HRESULT AddIn::QueryInterface(REFIID iid, void** object) {
  if (!object) return E_POINTER;
  const bool offered = iid == IID_IUnknown || iid == IID_IDispatch || iid == kIidOfExtensibility;
  *object = offered ? static_cast<IDTExtensibility2*>(this) : nullptr;
  if (!offered) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG AddIn::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT AddIn::GetTypeInfoCount(UINT* count) {
  if (!count) return E_POINTER;
  *count = 0;
  return S_OK;
}

HRESULT AddIn::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  if (!info) return E_POINTER;
  *info = nullptr;
  return DISP_E_BADINDEX;
}

// Only the members have names, their arguments have none.
HRESULT AddIn::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
  if (!names || !ids || count == 0) return E_INVALIDARG;
  std::fill(ids, ids + count, DISPID_UNKNOWN);
  ids[0] = FindMethod(names[0]);
  if (ids[0] == DISPID_UNKNOWN) ids[0] = FindMember(names[0]);
  return ids[0] == DISPID_UNKNOWN || count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT AddIn::Invoke(DISPID id, REFIID, LCID, WORD how, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* told,
                      UINT*) {
  const ComPointer<AddIn> alive(this);
  if (!parameters) return E_INVALIDARG;
  return Guarded([&] {
    try {
      const bool is_method = id >= kOnConnection && id <= kOnBeginShutdown;
      return is_method ? InvokeMethod(id, how, *parameters)
                       : InvokeMember(session_.get(), id, how, *parameters, result);
    } catch (const host::Error& error) {
      return Raise(error, told);
    }
  });
}

HRESULT AddIn::InvokeMethod(DISPID id, WORD how, const DISPPARAMS& parameters) {
  if (!(how & DISPATCH_METHOD)) return DISP_E_MEMBERNOTFOUND;
  if (parameters.cArgs != kArguments[id - 1]) return DISP_E_BADPARAMCOUNT;
  if (parameters.cNamedArgs != 0) return DISP_E_NONAMEDARGS;
  switch (id) {
    case kOnConnection:
      return OnConnection(ArgumentAt(parameters, 0).ToObject().Get(), ArgumentAt(parameters, 1).ToLong(), nullptr,
                          nullptr);
    case kOnDisconnection:
      return OnDisconnection(ArgumentAt(parameters, 0).ToLong(), nullptr);
    case kOnAddInsUpdate:
      return OnAddInsUpdate(nullptr);
    case kOnStartupComplete:
      return OnStartupComplete(nullptr);
  }
  return OnBeginShutdown(nullptr);
}

HRESULT AddIn::OnConnection(IDispatch* application, long connect_mode, IDispatch*, SAFEARRAY**) {
  const ComPointer<AddIn> alive(this);
  Guarded([&] {
    try {
      Connect(application, static_cast<addin::ConnectMode>(connect_mode));
    } catch (const std::exception& error) {
      Tell(error.what());
    }
  });
  return S_OK;
}

void AddIn::Connect(IDispatch* application, addin::ConnectMode mode) {
  Disconnect(addin::DisconnectMode::UserClosed);  // of a connection that nobody ended
  session_ = std::make_unique<Session>(new_home_());
  session_->Connect(application, mode);
}

HRESULT AddIn::OnDisconnection(long remove_mode, SAFEARRAY**) {
  const ComPointer<AddIn> alive(this);
  Guarded([&] { Disconnect(static_cast<addin::DisconnectMode>(remove_mode)); });
  return S_OK;
}

void AddIn::Disconnect(addin::DisconnectMode mode) {
  if (!session_) return;
  std::unique_ptr<Session> ending = std::move(session_);
  ending->Disconnect(mode);
  LetGo(std::move(ending));
}

// A connection comes to be and ends; between them there is nothing that the add-in must hear.
HRESULT AddIn::OnAddInsUpdate(SAFEARRAY**) {
  return S_OK;
}

HRESULT AddIn::OnStartupComplete(SAFEARRAY**) {
  return S_OK;
}

HRESULT AddIn::OnBeginShutdown(SAFEARRAY**) {
  return S_OK;
}

}  // namespace corvane::com
