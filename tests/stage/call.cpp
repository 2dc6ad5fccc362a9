#include "tests/stage/call.h"

#include "tests/stage/pictures.h"
#include "tests/stage/published.h"
#include "tests/stage/texts.h"

namespace corvane::stage {

using runtime::Variant;

Call::Call(Stage& stage, std::shared_ptr<void> target, DISPPARAMS& parameters)
    : stage(stage), target_(std::move(target)), parameters_(parameters) {
  VariantInit(&result_);
}

// Arguments come last first.
bool Call::Has(long position) const {
  if (position >= Count()) return false;
  const VARIANT& argument = parameters_.rgvarg[Count() - 1 - position];
  return argument.vt != VT_ERROR || argument.scode != DISP_E_PARAMNOTFOUND;
}

VARIANT& Call::At(long position) const {
  if (!Has(position)) throw BadArguments{DISP_E_PARAMNOTOPTIONAL, position};
  VARIANT* argument = &parameters_.rgvarg[Count() - 1 - position];
  if (argument->vt == (VT_BYREF | VT_VARIANT)) argument = argument->pvarVal;
  return *argument;
}

VARIANT Call::As(long position, VARTYPE type) {
  VARIANT converted;
  VariantInit(&converted);
  if (FAILED(VariantChangeType(&converted, &At(position), 0, type))) throw BadArguments{DISP_E_TYPEMISMATCH, position};
  return converted;
}

std::string Call::Text(long position) {
  VARIANT text = As(position, VT_BSTR);
  const std::string bytes = FromBstr(text.bstrVal);
  VariantClear(&text);
  return bytes;
}

long Call::Number(long position) {
  return As(position, VT_I4).lVal;
}

double Call::Real(long position) {
  return As(position, VT_R8).dblVal;
}

bool Call::Flag(long position) {
  return As(position, VT_BOOL).boolVal != VARIANT_FALSE;
}

namespace {

// A published object of that interface; Nothing for others.
template <class T>
host::Ref<T> If(IUnknown* object) {
  const Published* published = object == nullptr ? nullptr : Published::Of(object);
  if (published == nullptr || &published->Table() != &TableOf<T>()) return nullptr;
  return std::static_pointer_cast<T>(published->Target());
}

}  // namespace

host::Index Call::Place(long position) {
  const VARTYPE type = static_cast<VARTYPE>(At(position).vt & ~VT_BYREF);
  if (type == VT_BSTR) return Text(position);
  return Number(position);
}

Variant Call::Value(long position) {
  const VARIANT& argument = At(position);
  switch (argument.vt & ~VT_BYREF) {
    case VT_EMPTY:
    case VT_NULL:
      return {};
    case VT_BOOL:
      return Flag(position);
    case VT_I1:
    case VT_UI1:
    case VT_I2:
    case VT_UI2:
    case VT_I4:
    case VT_INT:
      return Number(position);
    case VT_BSTR:
      return Text(position);
    case VT_DISPATCH:
    case VT_UNKNOWN: {
      IUnknown* object = (argument.vt & VT_BYREF) ? *argument.ppunkVal : argument.punkVal;
      if (const auto picture = PictureOf(object)) return picture;
      if (const auto control = If<host::VBControl>(object)) return std::shared_ptr<runtime::Object>(control);
      if (const auto properties = Object(position, TableOf<host::Properties>()))
        return std::shared_ptr<runtime::Object>(std::static_pointer_cast<host::Properties>(properties));
      return std::shared_ptr<runtime::Object>();
    }
    default:
      return Real(position);
  }
}

std::shared_ptr<void> Call::Object(long position, const ObjectTable& table) {
  if (!Has(position)) return nullptr;
  const VARIANT& argument = At(position);
  const VARTYPE type = static_cast<VARTYPE>(argument.vt & ~VT_BYREF);
  if (type != VT_DISPATCH && type != VT_UNKNOWN) throw BadArguments{DISP_E_TYPEMISMATCH, position};
  IUnknown* object = (argument.vt & VT_BYREF) ? *argument.ppunkVal : argument.punkVal;
  if (object == nullptr) return nullptr;
  const Published* published = Published::Of(object);
  if (published == nullptr || &published->Table() != &table) throw BadArguments{DISP_E_TYPEMISMATCH, position};
  return published->Target();
}

void Call::WriteBack(long position, long value) {
  if (!Has(position)) return;
  VARIANT& argument = parameters_.rgvarg[Count() - 1 - position];
  if (argument.vt == (VT_BYREF | VT_I4)) {
    *argument.plVal = value;
  } else if (argument.vt == (VT_BYREF | VT_VARIANT)) {
    VariantClear(argument.pvarVal);
    argument.pvarVal->vt = VT_I4;
    argument.pvarVal->lVal = value;
  } else if (argument.vt & VT_BYREF) {
    throw BadArguments{DISP_E_TYPEMISMATCH, position};
  }
}

void Call::Return(const std::string& text) {
  VariantClear(&result_);
  result_.vt = VT_BSTR;
  result_.bstrVal = NewBstr(text);
}

void Call::Return(long number) {
  VariantClear(&result_);
  result_.vt = VT_I4;
  result_.lVal = number;
}

void Call::Return(short number) {
  VariantClear(&result_);
  result_.vt = VT_I2;
  result_.iVal = number;
}

void Call::Return(bool flag) {
  VariantClear(&result_);
  result_.vt = VT_BOOL;
  result_.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
}

void Call::Return(const Variant& value) {
  VariantClear(&result_);
  if (const auto* flag = std::get_if<bool>(&value)) return Return(*flag);
  if (const auto* number = std::get_if<long>(&value)) return Return(*number);
  if (const auto* text = std::get_if<std::string>(&value)) return Return(*text);
  if (const auto* picture = std::get_if<runtime::PictureRef>(&value)) return ReturnPicture(*picture);
  if (const auto* real = std::get_if<double>(&value)) {
    result_.vt = VT_R8;
    result_.dblVal = *real;
  }
  if (const auto* object = std::get_if<std::shared_ptr<runtime::Object>>(&value)) ReturnKnown(*object);
}

void Call::ReturnKnown(const std::shared_ptr<runtime::Object>& object) {
  if (const auto control = std::dynamic_pointer_cast<host::VBControl>(object)) return Return(control);
  if (const auto items = std::dynamic_pointer_cast<host::LateBound>(object)) return Return(items);
  Return(std::dynamic_pointer_cast<host::Properties>(object));
}

void Call::ReturnObject(IUnknown* owned, VARTYPE type) {
  VariantClear(&result_);
  result_.vt = type;
  result_.punkVal = owned;
}

void Call::ReturnPublished(const std::shared_ptr<void>& object, const ObjectTable& table) {
  ReturnObject(object ? NewPublished(stage, object, table) : nullptr, VT_DISPATCH);
}

void Call::ReturnPicture(const runtime::PictureRef& picture) {
  ReturnObject(NewPicture(picture), VT_DISPATCH);
}

void Call::MoveResultTo(VARIANT* result) {
  if (result == nullptr) return;
  *result = result_;
  VariantInit(&result_);
}

}  // namespace corvane::stage
