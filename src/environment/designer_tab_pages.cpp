#include "environment/designer_tab_pages.h"

#include <charconv>

#include "environment/designer_lines.h"
#include "environment/designer_tree.h"
#include "environment/lookup.h"

namespace corvane::environment {

namespace {

// "Tab(0).Control(1).Enabled" in its parts.
struct PageEntry {
  std::string_view page;  // "Tab(0)"
  long control = -1;
  std::string_view rest;  // ".Enabled" or nothing
};

bool ReadEntry(std::string_view name, PageEntry& entry) {
  constexpr std::string_view kPage = "Tab(", kControl = ").Control(";
  if (name.substr(0, kPage.size()) != kPage) return false;
  const size_t at = name.find(kControl);
  if (at == std::string_view::npos) return false;
  entry.page = name.substr(0, at + 1);
  const std::string_view number = name.substr(at + kControl.size());
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), entry.control);
  if (error != std::errc{} || end == number.data() + number.size() || *end != ')') return false;
  entry.rest = number.substr(static_cast<size_t>(end - number.data()) + 1);
  return true;
}

// The entry that calls a control of [dialog] [name]; null if there is none.
DesignerItem* FindEntry(DesignerBlock* dialog, const std::string& name, PageEntry& entry) {
  if (!dialog) return nullptr;
  for (DesignerItem& item : dialog->items)
    if (item.kind == DesignerItem::Property && ReadEntry(item.name, entry) && entry.rest.empty() &&
        SameName(Unquoted(ValueOf(item.raw).text), name))
      return &item;
  return nullptr;
}

std::string EntryName(std::string_view page, long control, std::string_view rest = {}) {
  return std::string(page) + ".Control(" + std::to_string(control) + ")" + std::string(rest);
}

}  // namespace

std::string NameOnPage(const DesignerBlock& control) {
  const std::string_view index = LineValue(control, "Index").text;
  return std::string(control.name) + (index.empty() ? "" : "(" + std::string(index) + ")");
}

void FollowOnTabPage(DesignerPart& part, DesignerBlock& control, const std::string& old_name) {
  PageEntry entry;
  if (DesignerItem* item = FindEntry(control.parent, old_name, entry))
    part.SetRaw(*item, WithValue(item->raw, Quoted(NameOnPage(control))));
}

void PutOnTabPage(DesignerPart& part, DesignerBlock& control) {
  DesignerBlock& dialog = *control.parent;
  const std::string page = "Tab(" + std::to_string(LongValue(dialog, "Tab", 0)) + ")",
                    count_name = page + ".ControlCount";
  const DesignerItem* count = dialog.Find(count_name);
  if (!count) return;  // no tabbed dialog
  const long controls = LongValue(dialog, count_name, 0);
  const auto place = dialog.items.begin() + (count - dialog.items.data());
  dialog.items.insert(place, part.NewProperty(PropertyLine(dialog.depth + 1, EntryName(page, controls),
                                                           Quoted(NameOnPage(control)), part.LineEnd())));
  SetLine(part, dialog, count_name, std::to_string(controls + 1));
}

void TakeOffTabPage(DesignerPart& part, DesignerBlock& control) {
  PageEntry gone;
  if (!FindEntry(control.parent, NameOnPage(control), gone)) return;
  const std::string page(gone.page);
  auto& items = control.parent->items;
  for (size_t i = 0; i < items.size();) {
    PageEntry entry;
    const bool on_page =
        items[i].kind == DesignerItem::Property && ReadEntry(items[i].name, entry) && entry.page == page;
    if (on_page && entry.control == gone.control) {
      items.erase(items.begin() + static_cast<long>(i));
      continue;
    }
    if (on_page && entry.control > gone.control) {
      const std::string name = EntryName(page, entry.control - 1, entry.rest);
      std::string raw(items[i].raw);
      raw.replace(raw.find(items[i].name), items[i].name.size(), name);
      part.SetRaw(items[i], std::move(raw));
    }
    ++i;
  }
  const std::string count = page + ".ControlCount";
  if (const long controls = LongValue(*control.parent, count, 0); controls > 0)
    SetLine(part, *control.parent, count, std::to_string(controls - 1));
}

}  // namespace corvane::environment
