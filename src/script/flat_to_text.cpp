#include "script/flat_to_text.h"

#include "runtime/strings.h"
#include "script/flat_items.h"

namespace corvane::script {

namespace {

bool IsGeneratedJump(std::string_view statement) {
  const std::string start = runtime::UCase(statement.substr(0, 5));
  return runtime::BeginsWith(start, "GO ") || start == "GOTB " || start == "GOTF " || start == "GOTV ";
}

bool IsShown(const FlatItem& item) {
  return item.kind == FlatItem::kLabel ? !runtime::BeginsWith(item.text, "_") : !IsGeneratedJump(item.text);
}

}  // namespace

std::string FlatToText(std::string_view flat) {
  std::string lines;
  while (flat.size() >= 2) {
    flat = WithoutSeparators(flat);
    if (flat.empty()) break;
    const FlatItem item = ReadFlatItem(flat);
    if (item.kind == FlatItem::kOpenLabel) return lines + " Syntax Error";
    if (item.kind == FlatItem::kBroken) break;
    if (IsShown(item)) (lines += item.text) += runtime::kCrLf;
    flat.remove_prefix(item.size);
  }
  return lines;
}

}  // namespace corvane::script
