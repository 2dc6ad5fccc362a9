#include "com/dispatch.h"

#include <array>

#include "com/errors.h"

namespace corvane::com {

namespace {

constexpr size_t kMostArguments = 8;

// What a failed call tells about itself.
class Told {
 public:
  ~Told() {
    SysFreeString(info_.bstrSource);
    SysFreeString(info_.bstrDescription);
    SysFreeString(info_.bstrHelpFile);
  }
  EXCEPINFO* Out() { return &info_; }
  [[noreturn]] void Throw(HRESULT code) {
    if (info_.pfnDeferredFillIn) info_.pfnDeferredFillIn(&info_);
    throw ErrorOf(code, &info_);
  }

 private:
  EXCEPINFO info_{};
};

// Arguments stand in a call from the last to the first.
class Reversed {
 public:
  Reversed(const Value* values, size_t count) : count_(count) {
    if (count > kMostArguments) throw ErrorOf(DISP_E_BADPARAMCOUNT);
    for (size_t i = 0; i < count; ++i) arguments_[i] = values[count - 1 - i].Get();
  }
  DISPPARAMS Parameters() { return {arguments_.data(), nullptr, static_cast<UINT>(count_), 0}; }

 private:
  std::array<VARIANT, kMostArguments> arguments_{};  // owned by the values
  size_t count_;
};

}  // namespace

Dispatch::Found Dispatch::Find(const wchar_t* member) {
  for (const auto& [name, id] : ids_)
    if (name == member) return {S_OK, id};
  if (!object_) throw host::Error(runtime::kObjectNotSet);
  DISPID id = DISPID_UNKNOWN;
  LPOLESTR name = const_cast<LPOLESTR>(member);
  const HRESULT code = object_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
  if (SUCCEEDED(code)) ids_.emplace_back(member, id);
  return {code, id};
}

DISPID Dispatch::IdOf(const wchar_t* member) {
  const Found found = Find(member);
  Check(found.code);
  return found.id;
}

Value Dispatch::GetNamed(const std::wstring& member, const std::vector<Value>& arguments) {
  if (!object_) throw host::Error(runtime::kObjectNotSet);
  DISPID id = DISPID_UNKNOWN;
  LPOLESTR name = const_cast<LPOLESTR>(member.c_str());
  Check(object_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id));
  return Invoke(id, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments.data(), arguments.size());
}

Value Dispatch::Invoke(DISPID id, WORD how, const Value* values, size_t count) {
  // The call may let go of this wrapper: it may run any handler of the system.
  const ComPointer<IDispatch> object = object_;
  if (!object) throw host::Error(runtime::kObjectNotSet);
  Reversed arguments(values, count);
  DISPPARAMS parameters = arguments.Parameters();
  Value result;
  Told told;
  const HRESULT code = object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, how, &parameters,
                                      how == DISPATCH_METHOD ? nullptr : result.Out(), told.Out(), nullptr);
  if (FAILED(code)) told.Throw(code);
  return result;
}

// Objects are set by reference where the property takes that, else as values are.
void Dispatch::Write(DISPID id, const Value* values, size_t count) {
  const ComPointer<IDispatch> object = object_;
  Reversed arguments(values, count);
  DISPID value = DISPID_PROPERTYPUT;
  DISPPARAMS parameters = arguments.Parameters();
  parameters.rgdispidNamedArgs = &value;
  parameters.cNamedArgs = 1;
  const auto put = [&](WORD how, Told& told) {
    return object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, how, &parameters, nullptr, told.Out(), nullptr);
  };
  if (values[count - 1].Get().vt == VT_DISPATCH) {
    Told told;
    const HRESULT code = put(DISPATCH_PROPERTYPUTREF, told);
    if (SUCCEEDED(code)) return;
    if (code != DISP_E_MEMBERNOTFOUND && code != DISP_E_TYPEMISMATCH) told.Throw(code);
  }
  Told told;
  if (const HRESULT code = put(DISPATCH_PROPERTYPUT, told); FAILED(code)) told.Throw(code);
}

}  // namespace corvane::com
