#include <algorithm>
#include <utility>

#include "forms/lists.h"
#include "forms/property_table.h"

namespace corvane::forms {

namespace {

constexpr Twips kDefaultHeight = 315;

constexpr PropertyEntry<ComboBox> kProperties[] = {
    Entry<ComboBox, &ComboBox::Style, &ComboBox::SetStyle>(Property::Style),
    Entry<ComboBox, &ComboBox::Text, &ComboBox::SetText>(Property::Text),
    Entry<ComboBox, &ComboBox::Locked, &ComboBox::SetLocked>(Property::Locked),
    Entry<ComboBox, &ComboBox::SelStart, &ComboBox::SetSelStart>(Property::SelStart),
    Entry<ComboBox, &ComboBox::SelLength, &ComboBox::SetSelLength>(Property::SelLength),
};

long RowOf(const ComboBox& combo, const std::string& text) {
  const RowStore& rows = combo.Rows();
  for (long row = 0; row < rows.Count(); ++row) {
    if (rows.At(row).text == text) return row;
  }
  return -1;
}

}  // namespace

ComboBox::ComboBox(Container& container, std::string name, int index) : ListControl(container, std::move(name), index) {
  place_.height = kDefaultHeight;
}

void ComboBox::SetStyle(int value) {
  if (value < 0 || value > 2) throw Error(runtime::kInvalidPropertyValue);
  style_ = value;
  Changed(Property::Style);
}

std::string ComboBox::Text() const {
  return style_ == 2 ? List(list_index_) : text_;
}

void ComboBox::SetText(const std::string& value) {
  const long row = RowOf(*this, value);
  if (style_ == 2) {
    if (row < 0) throw Error(runtime::kPropertyReadOnly);
    return SetListIndex(row);
  }
  list_index_ = row;
  sel_start_ = sel_length_ = 0;
  if (text_ == value) return;
  text_ = value;
  Changed(Property::Text);
  Change();
}

void ComboBox::SetLocked(bool value) {
  locked_ = value;
  Changed(Property::Locked);
}

void ComboBox::SetSelStart(long value) {
  if (value < 0) throw Error(runtime::kInvalidPropertyValue);
  sel_start_ = std::min(value, static_cast<long>(Text().size()));
  sel_length_ = 0;
  Changed(Property::SelStart);
}

void ComboBox::SetSelLength(long value) {
  if (value < 0) throw Error(runtime::kInvalidPropertyValue);
  sel_length_ = std::min(value, static_cast<long>(Text().size()) - sel_start_);
  Changed(Property::SelLength);
}

// The text of the row goes into the edit, with Click and without Change.
void ComboBox::OnSelect() {
  text_ = List(list_index_);
  Changed(Property::Text);
  Click();
}

// The text of a style with edit stays when its row goes.
void ComboBox::OnRowsChanged() {
  if (ListCount() > 0 || text_.empty()) return;
  text_.clear();
  Changed(Property::Text);
}

void ComboBox::UserSelect(long row) {
  if (locked_) return Changed(Property::ListIndex);
  ListControl::UserSelect(row);
}

void ComboBox::UserEdit(std::string text) {
  if (!AcceptsInput() || style_ == 2 || locked_) return Changed(Property::Text);
  if (text_ == text) return;
  text_ = std::move(text);
  list_index_ = -1;
  Change();
}

void ComboBox::UserDropDown() {
  if (AcceptsInput() && !locked_) DropDown();
}

Variant ComboBox::Get(Property property) const {
  return GetBy<ListControl>(kProperties, *this, property);
}
void ComboBox::Set(Property property, const Variant& value) {
  SetBy<ListControl>(kProperties, *this, property, value);
}

}  // namespace corvane::forms
