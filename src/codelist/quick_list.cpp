// The quick list: a plain list over the lower half of the pane whose items are lines to go to.
#include "codelist/raised.h"
#include "codelist/uc_list_box.h"

namespace corvane::codelist {

void ucListBox::AddQuickItem(long index) {
  if (!store.Has(index)) return;
  lbx.AddItem(List(index));
  lbx.SetItemData(lbx.NewIndex(), index);
}

void ucListBox::ClearQuickList() {
  lbx.Clear();
  lbx.SetVisible(false);
}

void ucListBox::PlaceQuickList() {
  const long middle = visibleRows / 2 + 1;  // whole rows
  const Twips top = static_cast<Twips>(middle) * rowHeight;
  lbx.Move(gutterWidth + 20, top, std::max<Twips>(0, pic.ScaleWidth() - gutterWidth - 30),
           std::max<Twips>(0, pic.ScaleHeight() - top));
  lbx.SetVisible(true);
  lbx.ZOrder();
}

void ucListBox::ShowQuickList() {
  PlaceQuickList();
  runtime::PassOverErrors([this] { lbx.SetFocus(); });
}

// Moving the current line may take the focus from the list; that is no reason to close it.
void ucListBox::lbx_Click() {
  if (lbx.ListIndex() < 0) return;
  quickListBusy = true;
  SetStrPos(lbx.ItemData(lbx.ListIndex()));
  quickListBusy = false;
  runtime::PassOverErrors([this] { lbx.SetFocus(); });
}

void ucListBox::lbx_LostFocus() {
  if (!std::exchange(quickListBusy, false)) lbx.SetVisible(false);
}

void ucListBox::lbx_KeyPress(int key) {
  if (key == forms::vbKeyReturn || key == forms::vbKeyEscape) HideQuickList();
}

// The focus leaves first: hidden with it, the list would hand it to the control that follows.
void ucListBox::HideQuickList() {
  runtime::PassOverErrors([this] { pic.SetFocus(); });
  lbx.SetVisible(false);
}

}  // namespace corvane::codelist
