// Late: late-bound calls as a script makes them, for tests that look at a published object from outside.
#pragma once

#include <initializer_list>
#include <oaidl.h>
#include <string>
#include <vector>

#include "tests/stage/com_pointer.h"
#include "tests/stage/texts.h"

namespace corvane::stage {

class Late {
 public:
  // A value with its own storage: an argument, or an answer.
  class Variant : public VARIANT {
   public:
    Variant() { VariantInit(this); }
    Variant(long number) : Variant() { vt = VT_I4, lVal = number; }
    Variant(const char* text) : Variant() { vt = VT_BSTR, bstrVal = NewBstr(text); }
    Variant(bool flag) : Variant() { vt = VT_BOOL, boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE; }
    Variant(long* number) : Variant() { vt = VT_BYREF | VT_I4, plVal = number; }
    Variant(VARIANT* value) : Variant() { vt = VT_BYREF | VT_VARIANT, pvarVal = value; }
    Variant(const Late& object) : Variant() {
      vt = VT_DISPATCH, pdispVal = object.object_.Get();
      if (pdispVal) pdispVal->AddRef();
    }
    Variant(const Variant& other) : Variant() { VariantCopy(this, const_cast<Variant*>(&other)); }
    Variant& operator=(const Variant& other) {
      VariantCopy(this, const_cast<Variant*>(&other));
      return *this;
    }
    ~Variant() { VariantClear(this); }
    static Variant LeftOut() {
      Variant variant;
      variant.vt = VT_ERROR, variant.scode = DISP_E_PARAMNOTFOUND;
      return variant;
    }
    std::string Text() const { return vt == VT_BSTR ? FromBstr(bstrVal) : "type " + std::to_string(vt); }
    long Number() const { return vt == VT_I4 ? lVal : vt == VT_I2 ? iVal : -1; }
    Late Object() const { return Late(ComPointer<IDispatch>::Shared(vt == VT_DISPATCH ? pdispVal : nullptr)); }
  };
  using Arguments = std::initializer_list<Variant>;

  Late() = default;
  explicit Late(ComPointer<IDispatch> object) : object_(std::move(object)) {}
  IDispatch* Object() const { return object_.Get(); }

  // What the latest call came back with.
  struct Outcome {
    HRESULT code = S_OK;
    HRESULT error = 0;  // of an Error: its code and text
    std::string text;
  };
  const Outcome& Last() const { return last_; }

  DISPID IdOf(const char* name) {
    std::wstring wide = Wide(name);
    LPOLESTR names = wide.data();
    DISPID id = DISPID_UNKNOWN;
    last_ = {object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id), 0, {}};
    return id;
  }
  Variant Get(const char* name, Arguments arguments = {}) {
    return Invoke(IdOf(name), DISPATCH_PROPERTYGET | DISPATCH_METHOD, arguments);
  }
  void Put(const char* name, Arguments arguments) { Invoke(IdOf(name), DISPATCH_PROPERTYPUT, arguments); }
  Variant Invoke(DISPID id, WORD flags, Arguments arguments = {}) {
    if (FAILED(last_.code) && id == DISPID_UNKNOWN) return {};
    std::vector<VARIANT> reversed(std::rbegin(arguments), std::rend(arguments));
    DISPID value = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    if (flags & DISPATCH_PROPERTYPUT) parameters.rgdispidNamedArgs = &value, parameters.cNamedArgs = 1;
    Variant answer;
    EXCEPINFO told{};
    last_ = {object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, &answer, &told, nullptr), 0, {}};
    if (told.pfnDeferredFillIn) told.pfnDeferredFillIn(&told);
    last_.error = told.scode;
    last_.text = FromBstr(told.bstrDescription);
    SysFreeString(told.bstrDescription);
    SysFreeString(told.bstrSource);
    return answer;
  }

 private:
  ComPointer<IDispatch> object_;
  Outcome last_;
};

}  // namespace corvane::stage
