#include "runtime/collate.h"

#include <algorithm>

#include "runtime/code_page.h"

namespace corvane::runtime {

int CompareAsListed(std::string_view left, std::string_view right) {
  const auto& order = AnsiCodePage().ListOrder();
  const size_t shared = std::min(left.size(), right.size());
  for (size_t i = 0; i < shared; ++i) {
    if (left[i] == right[i]) continue;
    const int difference = order[static_cast<unsigned char>(left[i])] - order[static_cast<unsigned char>(right[i])];
    if (difference != 0) return difference;
  }
  return left.size() == right.size() ? 0 : left.size() < right.size() ? -1 : 1;
}

}  // namespace corvane::runtime
