#include "script/cell.h"

#include "runtime/strings.h"

namespace corvane::script {

std::string TextOf(const Cell& cell) {
  if (const auto* text = std::get_if<std::string>(&cell)) return *text;
  if (const auto* number = std::get_if<double>(&cell)) return runtime::CStr(*number);
  if (const auto* truth = std::get_if<bool>(&cell)) return *truth ? "True" : "False";
  return runtime::CStr(std::get<int>(cell));
}

}  // namespace corvane::script
