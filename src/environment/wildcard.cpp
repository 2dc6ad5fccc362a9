#include "environment/wildcard.h"

#include "runtime/code_page.h"

namespace corvane::environment {

bool FitsWildcard(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*") return true;
  const auto& upper = runtime::AnsiCodePage().UpperTable();
  auto same = [&](char a, char b) {
    return upper[static_cast<unsigned char>(a)] == upper[static_cast<unsigned char>(b)];
  };
  // On a mismatch the last * takes one character more.
  size_t at = 0, want = 0, star = std::string_view::npos, star_at = 0;
  while (at < name.size()) {
    if (want < pattern.size() && pattern[want] == '*') {
      star = want++;
      star_at = at;
    } else if (want < pattern.size() && (pattern[want] == '?' || same(pattern[want], name[at]))) {
      ++want, ++at;
    } else if (star != std::string_view::npos) {
      want = star + 1;
      at = ++star_at;
    } else {
      return false;
    }
  }
  while (want < pattern.size() && pattern[want] == '*') ++want;
  return want == pattern.size();
}

}  // namespace corvane::environment
