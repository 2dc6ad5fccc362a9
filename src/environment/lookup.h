// Looking up an item of a collection by position or name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/base.h"
#include "runtime/strings.h"

namespace corvane::environment {

// Whether two names are one: compared without case by the code page in force.
inline bool SameName(std::string_view left, std::string_view right) {
  return left.size() == right.size() && (left == right || runtime::UCase(left) == runtime::UCase(right));
}

// The item of [items] at a position from 1, or the first whose name_of(item) is that name. Otherwise Error [number].
template <class Items, class NameOf>
auto ItemOf(const Items& items, const host::Index& index, NameOf name_of, long number = runtime::kSubscriptOutOfRange) {
  if (const long* position = std::get_if<long>(&index)) {
    if (*position >= 1 && *position <= static_cast<long>(items.size())) return items[*position - 1];
  } else {
    for (const auto& item : items)
      if (SameName(name_of(item), std::get<std::string>(index))) return item;
  }
  throw host::Error(number);
}

}  // namespace corvane::environment
