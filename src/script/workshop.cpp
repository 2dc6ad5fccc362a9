#include "script/workshop.h"

#include <algorithm>

#include "runtime/collate.h"

namespace corvane::script {

std::vector<std::string> SortedAsListed(std::vector<std::string> items) {
  std::stable_sort(items.begin(), items.end(), [](const std::string& left, const std::string& right) {
    return runtime::CompareAsListed(left, right) < 0;
  });
  return items;
}

}  // namespace corvane::script
