// List and ItemData: two records of the binary sibling that always have as many items.
#include "environment/designer_tree.h"
#include "environment/frx.h"
#include "environment/lookup.h"
#include "environment/properties.h"
#include "environment/properties_values.h"

namespace corvane::environment {

namespace {

void WriteRecord(const PropertyPlace& place, std::string_view name, const std::vector<std::string>& items) {
  SiblingReference before;
  const bool had = ReadReference(LineValue(place.Block(), name).text, before);
  const SiblingReference after = place.state->AppendRecord(frx::ListRecord(items), false, had ? &before : nullptr);
  SetLine(place.Part(), place.Block(), name, WriteReference(after));
}

}  // namespace

std::vector<std::string> ReadItems(const PropertyPlace& place, std::string_view name) {
  SiblingReference reference;
  std::vector<std::string> items;
  if (!ReadReference(LineValue(place.Block(), name).text, reference) || !reference.is_quoted) return items;
  host::PassOverErrors([&] {
    if (auto read = frx::ReadList(place.state->SiblingBytes(reference.file), reference.offset))
      items = std::move(*read);
  });
  return items;
}

void WriteItem(const PropertyPlace& place, std::string_view name, long index, const runtime::Variant& value) {
  std::vector<std::string> texts = ReadItems(place, "List"), data = ReadItems(place, "ItemData");
  data.resize(texts.size(), "0");
  // The place behind the last item adds one.
  if (index < 0 || index > static_cast<long>(texts.size())) throw host::Error(runtime::kInvalidPropertyArrayIndex);
  const bool is_data = SameName(name, "ItemData");
  const std::string item = is_data ? runtime::CStr(runtime::ToLong(value)) : runtime::ToText(value);
  if (index == static_cast<long>(texts.size())) {
    texts.emplace_back();
    data.emplace_back("0");
  } else if ((is_data ? data : texts)[static_cast<size_t>(index)] == item) {
    return;
  }
  (is_data ? data : texts)[static_cast<size_t>(index)] = item;
  WriteRecord(place, "ItemData", data);
  WriteRecord(place, "List", texts);
  place.state->Edited();
}

}  // namespace corvane::environment
