// Variant: the values that properties carry between the environment, controls and scripts.
#pragma once

#include <memory>
#include <string>
#include <variant>

#include "runtime/picture.h"

namespace corvane::runtime {

// Anything that can be held by reference in a Variant: a Properties collection, a control, a font.
class Object {
 public:
  virtual ~Object() = default;
};

// monostate is Empty.
using Variant = std::variant<std::monostate, bool, long, double, std::string, PictureRef, std::shared_ptr<Object>>;

// The value as text, as CStr gives it; an object or a picture is empty text.
std::string ToText(const Variant& value);
// The value as a number; texts by CDbl's rules. Throws Error 13 where CDbl would.
double ToNumber(const Variant& value);
long ToLong(const Variant& value);     // rounds half to even
bool ToBoolean(const Variant& value);  // any number but 0 is True; "True" and "False" in any case

}  // namespace corvane::runtime
