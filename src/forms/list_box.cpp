#include <algorithm>
#include <utility>

#include "forms/lists.h"
#include "forms/property_table.h"

namespace corvane::forms {

namespace {

constexpr Twips kDefaultHeight = 450;

constexpr PropertyEntry<ListBox> kProperties[] = {
    Entry<ListBox, &ListBox::Style, &ListBox::SetStyle>(Property::Style),
    Entry<ListBox, &ListBox::MultiSelect, &ListBox::SetMultiSelect>(Property::MultiSelect),
    {Property::Text, [](const ListBox& list) -> Variant { return list.Text(); },
     [](ListBox& list, const Variant& value) { list.SetText(runtime::ToText(value)); }},
};

}  // namespace

ListBox::ListBox(Container& container, std::string name, int index) : ListControl(container, std::move(name), index) {
  place_.height = kDefaultHeight;
}

void ListBox::SetStyle(int value) {
  if (value < 0 || value > 1) throw Error(runtime::kInvalidPropertyValue);
  style_ = value;
  Changed(Property::Style);
}

void ListBox::SetMultiSelect(int value) {
  if (value < 0 || value > 2 || (value != 0 && style_ == 1)) throw Error(runtime::kInvalidPropertyValue);
  multi_select_ = value;
  Changed(Property::MultiSelect);
}

// Selects the row of that text; none when there is no such row.
void ListBox::SetText(const std::string& value) {
  for (long row = 0; row < ListCount(); ++row) {
    if (rows_.At(row).text == value) return SetListIndex(row);
  }
  SetListIndex(-1);
}

bool ListBox::MarksRows() const {
  return style_ == 1 || multi_select_ != 0;
}

bool ListBox::Selected(long row) const {
  if (row < 0 || row >= ListCount()) throw Error(runtime::kInvalidPropertyArrayIndex);
  return MarksRows() ? rows_.At(row).selected : row == list_index_;
}

void ListBox::SetSelected(long row, bool value) {
  if (row < 0 || row >= ListCount()) throw Error(runtime::kInvalidPropertyArrayIndex);
  if (!MarksRows()) {
    if (value) {
      SetListIndex(row);
    } else if (row == list_index_) {
      SetListIndex(-1);
    }
    return;
  }
  if (rows_.At(row).selected == value) return;
  rows_.At(row).selected = value;
  list_index_ = row;
  Changed(Property::Selected);
  if (style_ == 1) ItemCheck(row);
  Click();
}

long ListBox::SelCount() const {
  if (!MarksRows()) return list_index_ >= 0 ? 1 : 0;
  long count = 0;
  for (long row = 0; row < ListCount(); ++row) count += rows_.At(row).selected;
  return count;
}

void ListBox::UserSelect(long row) {
  if (multi_select_ == 2 && AcceptsInput() && row >= 0 && row < ListCount()) {
    for (long each = 0; each < ListCount(); ++each) rows_.At(each).selected = each == row;
    Changed(Property::Selected);
  }
  ListControl::UserSelect(row);
}

void ListBox::UserToggle(long row) {
  if (!AcceptsInput() || row < 0 || row >= ListCount()) return;
  if (!MarksRows()) return UserSelect(row);
  SetSelected(row, !Selected(row));
}

void ListBox::UserExtend(long row) {
  if (!AcceptsInput() || row < 0 || row >= ListCount()) return;
  if (!MarksRows()) return UserSelect(row);
  const auto [first, last] = std::minmax({row, std::max(0L, list_index_)});
  for (long each = first; each <= last; ++each) rows_.At(each).selected = true;
  list_index_ = row;
  Changed(Property::Selected);
  Click();
}

Variant ListBox::Get(Property property) const {
  return GetBy<ListControl>(kProperties, *this, property);
}
void ListBox::Set(Property property, const Variant& value) {
  SetBy<ListControl>(kProperties, *this, property, value);
}

}  // namespace corvane::forms
