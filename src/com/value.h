// Value: a VARIANT that owns what it holds, made from and read as the types of the host contract.
#pragma once

#include <string>

#include "com/com_api.h"
#include "com/com_pointer.h"
#include "host/base.h"

namespace corvane::com {

// An optional argument that is left out between others.
struct Missing {};

class Value {
 public:
  Value() { VariantInit(&variant_); }  // Empty
  Value(Missing);
  Value(bool flag);
  Value(long number);
  Value(double number);
  Value(const std::string& text);
  Value(const host::Index& index);
  // Nothing for null.
  Value(IDispatch* object);
  // An argument that the call may write to. [by_reference] must live as long as the value.
  Value(long* by_reference);
  // No other pointer, and no integer of another width, finds its way into the wrong type.
  template <class T>
  Value(T) = delete;
  Value(const Value& other);
  Value(Value&& other) noexcept : variant_(other.variant_) { VariantInit(&other.variant_); }
  ~Value() { VariantClear(&variant_); }
  Value& operator=(Value other) noexcept;

  const VARIANT& Get() const { return variant_; }
  VARIANT* In() const { return const_cast<VARIANT*>(&variant_); }  // for calls that read it without saying so
  VARIANT* Out();  // for calls that write a result; what was held is let go first

  // Read by Visual Basic's rules: Error 13 for what has no such form, 6 for what is too large. Empty is 0, False, "".
  long ToLong() const;
  bool ToBool() const;
  std::string ToText() const;
  // Nothing where it is Empty, Null or Nothing; Error 424 for what is no object.
  ComPointer<IDispatch> ToObject() const;

 private:
  Value As(VARTYPE type) const;
  VARIANT variant_;
};

// The values that properties carry. Objects become what they are to the logic: pictures and collections of properties.
Value FromVariant(const host::Variant& value);
host::Variant ToVariant(const Value& value);

}  // namespace corvane::com
