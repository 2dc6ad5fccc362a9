// TypeLibrary: what an environment of a later version tells about its types: the numbers of its events, and an
// interface Events2 beside Events.
#pragma once

#include <oaidl.h>
#include <string>

#include "tests/stage/com_pointer.h"

namespace corvane::stage {

extern const IID kEvents2;

class TypeLibrary {
 public:
  // Numbers that are not the usual ones.
  static constexpr DISPID kClick = 71, kEnterRunMode = 72;

  TypeLibrary();
  // The type of the objects of a table; empty where the library does not hold it.
  ComPointer<ITypeInfo> TypeOf(const std::string& table) const;

 private:
  ComPointer<ITypeLib> library_;
};

}  // namespace corvane::stage
