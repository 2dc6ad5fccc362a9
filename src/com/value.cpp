#include "com/value.h"

#include <cstdio>
#include <cstdlib>

#include "com/errors.h"
#include "com/objects.h"
#include "com/pictures.h"
#include "com/texts.h"

namespace corvane::com {

Value::Value(Missing) : Value() {
  variant_.vt = VT_ERROR;
  variant_.scode = DISP_E_PARAMNOTFOUND;
}

Value::Value(bool flag) : Value() {
  variant_.vt = VT_BOOL;
  variant_.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
}

Value::Value(long number) : Value() {
  variant_.vt = VT_I4;
  variant_.lVal = number;
}

Value::Value(double number) : Value() {
  variant_.vt = VT_R8;
  variant_.dblVal = number;
}

Value::Value(const std::string& text) : Value() {
  variant_.bstrVal = NewBstr(text);
  variant_.vt = VT_BSTR;
}

Value::Value(const host::Index& index)
    : Value(std::visit([](const auto& position_or_name) { return Value(position_or_name); }, index)) {}

Value::Value(IDispatch* object) : Value() {
  variant_.vt = VT_DISPATCH;
  variant_.pdispVal = object;
  if (object) object->AddRef();
}

Value::Value(long* by_reference) : Value() {
  variant_.vt = VT_BYREF | VT_I4;
  variant_.plVal = by_reference;
}

Value::Value(const Value& other) : Value() {
  Check(VariantCopy(&variant_, other.In()));
}

Value& Value::operator=(Value other) noexcept {
  std::swap(variant_, other.variant_);
  return *this;
}

VARIANT* Value::Out() {
  VariantClear(&variant_);
  return &variant_;
}

Value Value::As(VARTYPE type) const {
  Value changed;
  Check(VariantChangeTypeEx(&changed.variant_, In(), LOCALE_USER_DEFAULT, VARIANT_ALPHABOOL, type));
  return changed;
}

long Value::ToLong() const {
  return variant_.vt == VT_I4 ? variant_.lVal : As(VT_I4).variant_.lVal;
}

bool Value::ToBool() const {
  return As(VT_BOOL).variant_.boolVal != VARIANT_FALSE;
}

std::string Value::ToText() const {
  return variant_.vt == VT_BSTR ? TextOf(variant_.bstrVal) : TextOf(As(VT_BSTR).variant_.bstrVal);
}

ComPointer<IDispatch> Value::ToObject() const {
  Value plain;
  Check(VariantCopyInd(&plain.variant_, In()));
  switch (plain.variant_.vt) {
    case VT_EMPTY:
    case VT_NULL:
      return {};
    case VT_DISPATCH:
      return ComPointer(plain.variant_.pdispVal);
    case VT_UNKNOWN:
      if (!plain.variant_.punkVal) return {};
      if (auto object = ComPointer(plain.variant_.punkVal).As<IDispatch>()) return object;
      throw ErrorOf(E_NOINTERFACE);
  }
  throw host::Error(runtime::kObjectRequired);
}

namespace {

// What a Single means is its 7 digits; as a double it would show more.
double DoubleOf(float single) {
  char digits[32];
  std::snprintf(digits, sizeof digits, "%.7g", static_cast<double>(single));
  return std::strtod(digits, nullptr);
}

host::Variant ObjectOf(const Value& value) {
  const ComPointer<IDispatch> object = value.ToObject();
  if (!object) return {};
  if (auto picture = object.As<IPicture>()) return BytesOf(*picture.Get());
  return std::static_pointer_cast<runtime::Object>(Wrap<host::Properties>(value));
}

struct ToComValue {
  Value operator()(std::monostate) const { return Value(); }
  Value operator()(const runtime::PictureRef& picture) const {
    return picture ? Value(static_cast<IDispatch*>(NewPicture(*picture).Get()))
                   : Value(static_cast<IDispatch*>(nullptr));
  }
  Value operator()(const std::shared_ptr<runtime::Object>& object) const { return Argument(object); }
  template <class Plain>
  Value operator()(const Plain& plain) const {
    return Value(plain);
  }
};

}  // namespace

Value FromVariant(const host::Variant& value) {
  return std::visit(ToComValue(), value);
}

host::Variant ToVariant(const Value& value) {
  Value plain;
  Check(VariantCopyInd(plain.Out(), value.In()));
  const VARIANT& held = plain.Get();
  switch (held.vt) {
    case VT_EMPTY:
    case VT_NULL:
      return {};
    case VT_BOOL:
      return plain.ToBool();
    case VT_I1:
    case VT_I2:
    case VT_I4:
    case VT_INT:
    case VT_UI1:
    case VT_UI2:
      return plain.ToLong();
    case VT_UI4:
    case VT_UINT:
      // A colour: the high bit is one bit of 32, not a large number.
      return static_cast<long>(held.ulVal);
    case VT_R4:
      return DoubleOf(held.fltVal);
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return ObjectOf(plain);
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DECIMAL: {
      Value number;
      Check(VariantChangeType(number.Out(), plain.In(), 0, VT_R8));
      return number.Get().dblVal;
    }
  }
  return plain.ToText();  // a text, a date; Error 13 for arrays and error values
}

}  // namespace corvane::com
