// What the tables of functions and commands show to a reader.
#pragma once

#include <algorithm>
#include <string_view>

namespace corvane::script {

// One sentence on one line.
inline bool IsHelp(std::string_view text) {
  constexpr size_t kLongest = 110;
  return text.size() > 5 && text.size() <= kLongest && text.back() == '.' && text.find('\n') == std::string_view::npos;
}

// How many arguments a shape names; with [needed] those alone that may not be left out.
inline long Arguments(std::string_view shape, bool needed) {
  if (shape.empty()) return 0;
  const long all = std::count(shape.begin(), shape.end(), ',') + 1;
  return needed ? all - std::count(shape.begin(), shape.end(), '[') : all;
}

// Names with ", " between them, some of them in brackets.
inline bool IsShape(std::string_view shape) {
  bool open = false;
  for (size_t at = 0; at < shape.size(); ++at) {
    if (shape[at] == '[' || shape[at] == ']') open = !open;
    if (open != (shape[at] == '[') && (shape[at] == '[' || shape[at] == ']')) return false;
    if (shape[at] == ',' && (open || shape.substr(at, 2) != ", ")) return false;
  }
  return !open && (shape.empty() || (shape.back() != ' ' && shape.back() != ','));
}

}  // namespace corvane::script
