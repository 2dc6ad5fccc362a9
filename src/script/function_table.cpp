#include "script/function_table.h"

#include <cmath>
#include <unordered_map>

#include "runtime/error.h"
#include "script/numbers.h"

namespace corvane::script {

const FunctionRow* FindFunction(std::string_view key) {
  static const auto rows = [] {
    std::unordered_map<std::string_view, const FunctionRow*> by_key;
    for (const auto group : {TextFunctions(), NumberFunctions(), OutsideFunctions()})
      for (const FunctionRow& row : group) by_key[row.key] = &row;
    return by_key;
  }();
  const auto found = rows.find(key);
  return found == rows.end() ? nullptr : found->second;
}

double DoubleOf(std::string_view text) {
  if (const auto number = NumberOf(text)) return *number;
  throw runtime::Error(runtime::kTypeMismatch);
}

long LongOf(std::string_view text) {
  const double number = std::nearbyint(DoubleOf(text));
  if (number < -2147483648.0 || number > 2147483647.0) throw runtime::Error(runtime::kOverflow);
  return static_cast<long>(number);
}

}  // namespace corvane::script
