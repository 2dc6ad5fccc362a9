#include "desk/bulleted.h"

#include "runtime/strings.h"

namespace corvane::desk {

using runtime::kCrLf;

std::string Bulleted(const std::vector<std::string>& items) {
  constexpr size_t kMostNamed = 15;
  std::string text;
  for (size_t at = 0; at < items.size() && at < kMostNamed; ++at) text += kCrLf + ("    " + items[at]);
  if (items.size() > kMostNamed) text += kCrLf + ("    and " + std::to_string(items.size() - kMostNamed) + " more");
  return text;
}

}  // namespace corvane::desk
