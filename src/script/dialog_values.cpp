#include "script/dialog_values.h"

#include "runtime/find_text.h"
#include "runtime/strings.h"
#include "script/marks.h"

namespace corvane::script {

namespace {

constexpr std::string_view kKinds[] = {"TEXT", "COMB", "MLIS", "RADI", "OPTI", "CHEC"};

bool IsKind(std::string_view kind) {
  for (std::string_view known : kKinds)
    if (known == kind) return true;
  return false;
}

// A combo box is text, indexMark, index; a list is selected item, indexMark, index, itemMark, item.
ControlValue Parted(std::string_view kind, std::string_view value) {
  if (kind != "COMB" && kind != "MLIS") return {std::string(value), {}, {}};
  const size_t index = value.find(indexMark);
  ControlValue parts{std::string(value.substr(0, index)), {}, {}};
  parts.item = parts.text;
  if (index == std::string_view::npos) return parts;
  value.remove_prefix(index + 1);
  const size_t item = kind == "MLIS" ? value.find(itemMark) : std::string_view::npos;
  parts.index = value.substr(0, item);
  if (item != std::string_view::npos) parts.item = value.substr(item + 1);
  return parts;
}

}  // namespace

std::optional<ControlValue> ReadControl(std::string_view values, std::string_view name) {
  if (values.empty()) return {};
  const std::string upper = runtime::UCase(values), key = "." + std::string(name) + "=";
  for (size_t at = 0; (at = runtime::FindFirst(upper, key, at)) != std::string::npos; ++at) {
    const std::string_view kind = at < 4 ? std::string_view() : std::string_view(upper).substr(at - 4, 4);
    if (!IsKind(kind)) continue;
    const std::string_view value = values.substr(at + key.size());
    return Parted(kind, value.substr(0, value.find(valueEnd)));
  }
  return {};
}

}  // namespace corvane::script
