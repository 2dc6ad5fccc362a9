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
  if (left.size() != right.size()) return false;
  const auto upper = [](unsigned char c) { return c >= 'a' && c <= 'z' ? c - 32 : c; };
  for (size_t i = 0; i < left.size(); ++i) {
    const unsigned char a = static_cast<unsigned char>(left[i]), b = static_cast<unsigned char>(right[i]);
    // ASCII is decided here; from the first other byte on, the code page says what the bytes are.
    if (a >= 0x80 || b >= 0x80) return runtime::UCase(left) == runtime::UCase(right);
    if (upper(a) != upper(b)) return false;
  }
  return true;
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
