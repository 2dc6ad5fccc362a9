// What list boxes and combo boxes share.
#include "forms/lists.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"
#include "forms/property_table.h"

namespace corvane::forms {

namespace {

constexpr Twips kBorders = 60;     // above and below the rows
constexpr Twips kBoxHeight = 225;  // of a row with a check box, at least

Twips RowHeightOf(const ListControl& list) {
  const Twips text = list.FormOf().Toolkit().Metrics().TextHeight(list.Font());
  const auto* box = dynamic_cast<const ListBox*>(&list);
  return box && box->Style() == 1 ? std::max(kBoxHeight, text) : text;
}

constexpr PropertyEntry<ListControl> kProperties[] = {
    ReadOnly<ListControl, &ListControl::ListCount>(Property::ListCount),
    ReadOnly<ListControl, &ListControl::NewIndex>(Property::NewIndex),
    Entry<ListControl, &ListControl::ListIndex, &ListControl::SetListIndex>(Property::ListIndex),
    Entry<ListControl, &ListControl::TopIndex, &ListControl::SetTopIndex>(Property::TopIndex),
    Entry<ListControl, &ListControl::Sorted, &ListControl::SetSorted>(Property::Sorted),
};

}  // namespace

ListControl::ListControl(Container& container, std::string name, int index)
    : Control(container, std::move(name), index) {
  back_color_ = kWindowBackground;
  fore_color_ = kWindowText;
}

void ListControl::AddItem(std::string text, long at) {
  if (at < -1 || at > ListCount()) throw Error(runtime::kInvalidProcedureCall);
  const long row = at >= 0 ? at : sorted_ ? rows_.SortedPlace(text) : ListCount();
  rows_.Insert(row, Row{std::move(text)});
  new_index_ = row;
  if (list_index_ >= row) ++list_index_;
  Changed(Property::List);
}

void ListControl::RemoveItem(long row) {
  if (row < 0 || row >= ListCount()) throw Error(runtime::kInvalidProcedureCall);
  rows_.Remove(row);
  new_index_ = -1;
  if (list_index_ == row) {
    list_index_ = -1;
  } else if (list_index_ > row) {
    --list_index_;
  }
  top_index_ = std::clamp(top_index_, 0L, std::max(0L, ListCount() - 1));
  OnRowsChanged();
  Changed(Property::List);
}

void ListControl::Clear() {
  rows_.Clear();
  list_index_ = new_index_ = -1;
  top_index_ = 0;
  OnRowsChanged();
  Changed(Property::List);
}

std::string ListControl::List(long row) const {
  return row >= 0 && row < ListCount() ? rows_.At(row).text : std::string();
}

void ListControl::SetList(long row, std::string text) {
  if (row < 0 || row > ListCount()) throw Error(runtime::kInvalidPropertyArrayIndex);
  if (row == ListCount()) return AddItem(std::move(text), row);
  rows_.At(row).text = std::move(text);
  Changed(Property::List);
}

long ListControl::ItemData(long row) const {
  return row >= 0 && row < ListCount() ? rows_.At(row).data : 0;
}

void ListControl::SetItemData(long row, long value) {
  if (row < 0 || row >= ListCount()) throw Error(runtime::kInvalidPropertyArrayIndex);
  rows_.At(row).data = value;
}

void ListControl::SetListIndex(long row) {
  if (row < -1 || row >= ListCount()) throw Error(runtime::kInvalidPropertyValue);
  if (row == list_index_) return;
  list_index_ = row;
  Changed(Property::ListIndex);
  OnSelect();
}

// The last page at most.
void ListControl::SetTopIndex(long row) {
  if (row < 0 || row >= std::max(1L, ListCount())) throw Error(runtime::kInvalidPropertyValue);
  top_index_ = std::min(row, std::max(0L, ListCount() - RowsInView()));
  Changed(Property::TopIndex);
}

long ListControl::RowsInView() const {
  return std::max(1L, static_cast<long>((Height() - kBorders) / RowHeightOf(*this)));
}

void ListControl::SetSorted(bool value) {
  sorted_ = value;
  Changed(Property::Sorted);
}

void ListControl::UserSelect(long row) {
  if (!AcceptsInput() || row < 0 || row >= ListCount()) return;
  if (list_index_ != row) {
    list_index_ = row;
    Changed(Property::ListIndex);
  }
  OnSelect();
}

void ListControl::UserScroll(long top_row) {
  if (top_index_ == top_row) return;
  top_index_ = top_row;
  Scroll();
}

Variant ListControl::Get(Property property) const {
  if (property == Property::Text) return Text();
  return GetBy<Control>(kProperties, *this, property);
}

void ListControl::Set(Property property, const Variant& value) {
  SetBy<Control>(kProperties, *this, property, value);
}

}  // namespace corvane::forms
