// What Visual Basic calls the kinds of components.
#pragma once

#include <string_view>

#include "host/project.h"

namespace corvane::desk {

struct KindNames {
  std::string_view class_name;  // in the property list
  std::string_view own_object;  // in the names of its own event procedures; empty where it has no events
};

// Both are empty for kinds that have neither.
KindNames NamesOf(host::ComponentType type);

}  // namespace corvane::desk
