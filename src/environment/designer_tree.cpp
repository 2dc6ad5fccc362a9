#include "environment/designer_tree.h"

#include <algorithm>

#include "environment/designer_lines.h"
#include "environment/designer_state.h"
#include "environment/doubtful_points.h"
#include "environment/lookup.h"
#include "environment/properties_values.h"

namespace corvane::environment {

namespace {

std::string SortKey(std::string_view name) {
  while (!name.empty() && name.front() == '_') name.remove_prefix(1);
  return runtime::UCase(name);
}

bool IsProperty(const DesignerItem& item) {
  return item.kind == DesignerItem::Property || (item.kind == DesignerItem::Block && item.block->is_property);
}

DesignerItem* FindItem(DesignerBlock& block, std::string_view name) {
  return const_cast<DesignerItem*>(block.Find(name));
}

// Before the first property that sorts behind [name], else behind the last property. The properties of a control of
// another library are two runs, its container's and, from the first "_" on, its own: the first run is meant.
std::vector<DesignerItem>::iterator PlaceFor(DesignerBlock& block, std::string_view name) {
  auto& items = block.items;
  const std::string key = SortKey(name);
  const bool foreign = !block.is_property && !FindControlClass(block.type) && !block.type.empty();
  auto behind_last = items.begin();
  for (auto item = items.begin(); item != items.end(); ++item) {
    if (!IsProperty(*item)) continue;
    if (SortKey(item->name) > key || (foreign && item->name.front() == '_')) return item;
    behind_last = item + 1;
  }
  return behind_last;
}

}  // namespace

const ControlClass* ClassOf(DesignerState& state, const DesignerBlock& block) {
  if (state.Kind() == host::ComponentType::ClassModule) return FindControlClass("VB.Class");
  return FindControlClass(block.type);
}

bool IsMenu(const DesignerBlock& block) {
  return SameName(block.type, "VB.Menu") || SameName(block.type, "Menu");
}

bool SetLine(DesignerPart& part, DesignerBlock& block, std::string_view name, const std::string& value) {
  if (DesignerItem* item = FindItem(block, name)) {
    if (item->kind != DesignerItem::Property) throw host::Error(runtime::kInvalidPropertyValue);
    std::string raw = WithValue(item->raw, value);
    if (raw == item->raw) return false;
    part.SetRaw(*item, std::move(raw));
    return true;
  }
  DesignerItem item = part.NewProperty(PropertyLine(block.depth + 1, name, value, part.LineEnd()));
  block.items.insert(PlaceFor(block, name), std::move(item));
  return true;
}

bool RemoveLine(DesignerBlock& block, std::string_view name) {
  const DesignerItem* found = block.Find(name);
  if (!found) return false;
  block.items.erase(block.items.begin() + (found - block.items.data()));
  return true;
}

DesignerBlock& AddPropertyBlock(DesignerPart& part, DesignerBlock& block, std::string_view name) {
  DesignerBlockRef added = part.NewBlock(block, true, {}, name);
  DesignerBlock& result = *added;
  DesignerItem item{DesignerItem::Block, {}, result.name, std::move(added)};
  block.items.insert(PlaceFor(block, name), std::move(item));
  return result;
}

DesignerValue LineValue(const DesignerBlock& block, std::string_view name) {
  const DesignerItem* item = block.Find(name);
  return item && item->kind == DesignerItem::Property ? ValueOf(item->raw) : DesignerValue{};
}

long LongValue(const DesignerBlock& block, std::string_view name, long otherwise) {
  return static_cast<long>(LengthValue(block, name, static_cast<double>(otherwise)));
}

double LengthValue(const DesignerBlock& block, std::string_view name, double otherwise) {
  double number = otherwise;
  return ReadNumber(LineValue(block, name).text, number) ? number : otherwise;
}

void PlaceControl(DesignerBlock& parent, const DesignerBlockRef& control) {
  auto& items = parent.items;
  auto place = items.end();
  if (!IsMenu(*control)) {
    const auto stands_behind = [](const DesignerItem& item) {
      const bool is_control = item.kind == DesignerItem::Block && !item.block->is_property;
      return is_control && (doubtful::kNewControlStandsFirst || IsMenu(*item.block));
    };
    place = std::find_if(items.begin(), items.end(), stands_behind);
  }
  control->parent = &parent;
  items.insert(place, {DesignerItem::Block, {}, control->name, control});
}

void TakeOut(DesignerBlock& block) {
  DesignerBlock* parent = block.parent;
  // Whoever still holds a block finds it without a parent: none of them is the root.
  const auto cut = [](auto& self, DesignerBlock& cut_block) -> void {
    cut_block.parent = nullptr;
    for (DesignerItem& item : cut_block.items)
      if (item.block) self(self, *item.block);
  };
  const auto keep = std::find_if(parent->items.begin(), parent->items.end(),
                                 [&](const DesignerItem& item) { return item.block.get() == &block; });
  const DesignerBlockRef alive = keep->block;
  parent->items.erase(keep);
  cut(cut, *alive);
}

}  // namespace corvane::environment
