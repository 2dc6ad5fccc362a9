// The box along the bottom in which one line is edited in place. What is left without Enter or an arrow key is dropped.
#include "codelist/uc_list_box.h"

namespace corvane::codelist {

void ucListBox::EditCodeline() {
  if (!store.Has(currentLine)) return;
  txtEdit.SetText(List(currentLine));
  const Twips rows = static_cast<Twips>(visibleRows - 1) * rowHeight;
  txtEdit.Move(gutterWidth + 20, std::max<Twips>(0, rows - hs.Height() - 20),
               std::max<Twips>(0, pic.ScaleWidth() - gutterWidth - 30), std::max<Twips>(0, pic.ScaleHeight() - rows));
  txtEdit.SetVisible(true);
  txtEdit.ZOrder();
  runtime::PassOverErrors([this] { txtEdit.SetFocus(); });
}

// The container writes the line and calls ReplaceItem. What it is told stays, even when it takes the focus and thereby
// closes the box.
void ucListBox::RaiseUpdate() {
  const std::string text = txtEdit.Text();
  if (text != List(currentLine)) UpdateString(currentLine, text);
}

void ucListBox::CloseEdit() {
  txtEdit.SetText("");
  txtEdit.SetVisible(false);
}

void ucListBox::txtEdit_KeyDown(int& key) {
  if (loading) return;
  const bool up = key == forms::vbKeyUp;
  if (!up && key != forms::vbKeyDown) return;
  key = 0;
  RaiseUpdate();
  if (up)
    LineUp();
  else
    LineDown();
  txtEdit.SetText(List(currentLine));
  if (!up && currentLine - topLine >= visibleRows) ScrollDownOne();
}

void ucListBox::txtEdit_KeyPress(int& key) {
  if (key == forms::vbKeyReturn) {
    key = 0;
    if (loading) return;
    RaiseUpdate();
    runtime::PassOverErrors([this] { pic.SetFocus(); });
  } else if (key == forms::vbKeyEscape) {
    key = 0;
    runtime::PassOverErrors([this] { pic.SetFocus(); });
    CloseEdit();
  }
}

}  // namespace corvane::codelist
