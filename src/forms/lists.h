// ListBox and ComboBox: rows of text, each with a number of its own.
#pragma once

#include "forms/control.h"
#include "forms/row_store.h"

namespace corvane::forms {

// What both have. Rows count from 0.
class ListControl : public Control {
 public:
  ListControl(Container& container, std::string name, int index = -1);
  bool CanTakeFocus() const override { return true; }

  // Where [at] is given the row goes there whether the list is sorted or not; a place outside 0 to ListCount is
  // Error 5.
  void AddItem(std::string text, long at = -1);
  void RemoveItem(long row);  // Error 5 outside the list
  void Clear();               // no Click
  long ListCount() const { return rows_.Count(); }
  // Empty text outside the list.
  std::string List(long row) const;
  void SetList(long row, std::string text);  // Error 381 outside 0 to ListCount; at ListCount it appends
  long ItemData(long row) const;             // 0 outside the list
  void SetItemData(long row, long value);    // Error 381 outside the list
  // The rows themselves, for a toolkit that shows many.
  const RowStore& Rows() const { return rows_; }
  // Row of the last AddItem; -1 when the list is empty or a row was removed since.
  long NewIndex() const { return new_index_; }
  // The selected row, -1 for none. Assigning another row raises Click; the same row nothing; outside the list Error
  // 380.
  long ListIndex() const { return list_index_; }
  void SetListIndex(long row);
  std::string Text() const { return List(list_index_); }
  long TopIndex() const { return top_index_; }
  // A row behind the last page is that page's first row; Error 380 outside the list.
  void SetTopIndex(long row);
  long RowsInView() const;  // that fit, at least 1
  bool Sorted() const { return sorted_; }
  void SetSorted(bool value);  // at design time: before rows are added

  // The user moved the selection to [row]: ListIndex and Click (also for the same row, as a mouse click does).
  virtual void UserSelect(long row);
  void UserScroll(long top_row);                     // raises Scroll
  void NoteTopIndex(long row) { top_index_ = row; }  // what a toolkit shows on top, for rows of another height
  Event<> Scroll;
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 protected:
  virtual void OnSelect() { Click(); }
  // The selection and the row in view after the rows have changed.
  virtual void OnRowsChanged() {}
  bool ClicksOnRelease() const override { return false; }
  RowStore rows_;
  long list_index_ = -1, new_index_ = -1, top_index_ = 0;
  bool sorted_ = false;
};

class ListBox : public ListControl {
 public:
  ListBox(Container& container, std::string name, int index = -1);
  ControlKind Kind() const override { return ControlKind::ListBox; }
  void SetText(const std::string& value);
  int Style() const { return style_; }  // 0 standard, 1 with check boxes
  void SetStyle(int value);
  int MultiSelect() const { return multi_select_; }  // 0 none, 1 simple, 2 extended
  void SetMultiSelect(int value);
  bool Selected(long row) const;
  void SetSelected(long row, bool value);  // with check boxes: the box; raises ItemCheck, then Click
  long SelCount() const;
  void UserSelect(long row) override;  // of extended selection: that row is marked and no other
  Event<long> ItemCheck;
  void UserToggle(long row);  // check box or Ctrl+click
  void UserExtend(long row);  // Shift: marks all from the selected row to this one, which is selected then; one Click
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 private:
  bool MarksRows() const;  // each row is selected by itself
  int style_ = 0, multi_select_ = 0;
};

class ComboBox : public ListControl {
 public:
  ComboBox(Container& container, std::string name, int index = -1);
  ControlKind Kind() const override { return ControlKind::ComboBox; }
  int Style() const { return style_; }  // 0 drop-down with edit, 1 simple, 2 drop-down list
  void SetStyle(int value);
  std::string Text() const;
  // Styles 0 and 1: raises Change when it differs, ListIndex becomes the row of that text or -1.
  // Style 2: selects the row of that text; Error 383 when there is none.
  void SetText(const std::string& value);
  void UserSelect(long row) override;
  void UserEdit(std::string text);
  void UserDropDown();
  bool Locked() const { return locked_; }  // shown, but the user cannot change it
  void SetLocked(bool value);
  // Of the text, from 0; styles 0 and 1.
  long SelStart() const { return sel_start_; }
  long SelLength() const { return sel_length_; }
  void SetSelStart(long value);
  void SetSelLength(long value);
  Event<> Change, DropDown;
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 protected:
  void OnSelect() override;
  void OnRowsChanged() override;

 private:
  int style_ = 0;
  bool locked_ = false;
  long sel_start_ = 0, sel_length_ = 0;
  std::string text_;
};

}  // namespace corvane::forms
