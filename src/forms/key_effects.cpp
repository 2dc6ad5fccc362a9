#include "forms/key_effects.h"

#include <algorithm>
#include <string>

#include "forms/controls.h"
#include "forms/list_rows.h"
#include "runtime/strings.h"

namespace corvane::forms {

namespace {

constexpr long kPageRows = 10;

// A toolkit that has widgets shows what was typed without them.
void Show(Control& control, Property property) {
  if (control.Peer()) control.Peer()->Changed(property);
}

bool MoveInList(ListControl& list, int key_code, int shift) {
  const bool sideways = key_code == vbKeyLeft || key_code == vbKeyRight;
  if (list.ListCount() == 0 || (sideways && list.Kind() == ControlKind::ComboBox)) return false;
  const long row = RowReached(list, key_code, kPageRows);
  if (row < 0) return false;
  if (row == list.ListIndex()) return true;
  auto* box = dynamic_cast<ListBox*>(&list);
  if (box && box->MultiSelect() == 2 && (shift & vbShiftMask) != 0) return box->UserExtend(row), true;
  list.UserSelect(row);
  return true;
}

bool ScrollBy(ScrollBar& bar, int key_code) {
  switch (key_code) {
    case vbKeyUp:
    case vbKeyLeft:
      return bar.UserScroll(bar.Value() - bar.SmallChange(), false), true;
    case vbKeyDown:
    case vbKeyRight:
      return bar.UserScroll(bar.Value() + bar.SmallChange(), false), true;
    case vbKeyPageUp:
      return bar.UserScroll(bar.Value() - bar.LargeChange(), false), true;
    case vbKeyPageDown:
      return bar.UserScroll(bar.Value() + bar.LargeChange(), false), true;
    case vbKeyHome:
      return bar.UserScroll(bar.Min(), false), true;
    case vbKeyEnd:
      return bar.UserScroll(bar.Max(), false), true;
    default:
      return false;
  }
}

void ReplaceSelection(TextBox& box, const std::string& text, long start, long length) {
  if (box.Locked()) return;
  std::string whole = box.Text();
  const long room = box.MaxLength() == 0 ? static_cast<long>(text.size())
                                         : box.MaxLength() - (static_cast<long>(whole.size()) - length);
  const std::string fits = text.substr(0, static_cast<size_t>(std::max(0L, room)));
  whole.replace(static_cast<size_t>(start), static_cast<size_t>(length), fits);
  box.UserEdit(std::move(whole), start + static_cast<long>(fits.size()), 0);
  Show(box, Property::Text);
}

bool MoveInText(TextBox& box, int key_code) {
  const long start = box.SelStart(), length = box.SelLength(), end = static_cast<long>(box.Text().size());
  switch (key_code) {
    case vbKeyLeft:
      return box.UserSelect(length ? start : start - 1, 0), true;
    case vbKeyRight:
      return box.UserSelect(length ? start + length : start + 1, 0), true;
    case vbKeyHome:
      return box.UserSelect(0, 0), true;
    case vbKeyEnd:
      return box.UserSelect(end, 0), true;
    case vbKeyDelete:
      if (start + std::max(1L, length) <= end) ReplaceSelection(box, "", start, std::max(1L, length));
      return true;
    default:
      return false;
  }
}

void EditText(TextBox& box, int key_ascii) {
  const long start = box.SelStart(), length = box.SelLength();
  if (key_ascii == vbKeyBack) {
    if (length > 0) return ReplaceSelection(box, "", start, length);
    if (start > 0) ReplaceSelection(box, "", start - 1, 1);
  } else if (key_ascii == vbKeyReturn || key_ascii == '\n') {
    if (box.MultiLine()) ReplaceSelection(box, runtime::kCrLf, start, length);
  } else if (key_ascii >= ' ') {
    ReplaceSelection(box, std::string(1, static_cast<char>(key_ascii)), start, length);
  }
}

void SelectByCharacter(ListControl& list, int key_ascii) {
  const char letter = static_cast<char>(key_ascii);
  const long row = RowBeginningWith(list, {&letter, 1});
  if (row >= 0) list.UserSelect(row);
}

void EditCombo(ComboBox& combo, int key_ascii) {
  if (combo.Style() == 2) return SelectByCharacter(combo, key_ascii);
  std::string text = combo.Text();
  if (key_ascii == vbKeyBack) {
    if (!text.empty()) text.pop_back();
  } else if (key_ascii >= ' ') {
    text += static_cast<char>(key_ascii);
  }
  combo.UserEdit(std::move(text));
  Show(combo, Property::Text);
}

}  // namespace

bool HaveKeyEffect(Control& control, int key_code, int shift) {
  if ((shift & (vbCtrlMask | vbAltMask)) != 0) return false;
  if (auto* list = dynamic_cast<ListControl*>(&control)) return MoveInList(*list, key_code, shift);
  if (auto* bar = dynamic_cast<ScrollBar*>(&control)) return ScrollBy(*bar, key_code);
  if (auto* box = dynamic_cast<TextBox*>(&control)) return MoveInText(*box, key_code);
  return false;
}

void HaveCharacterEffect(Control& control, int key_ascii) {
  if (auto* box = dynamic_cast<TextBox*>(&control)) return EditText(*box, key_ascii);
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) return EditCombo(*combo, key_ascii);
  if (auto* list = dynamic_cast<ListBox*>(&control)) {
    if (key_ascii != ' ' || (list->Style() != 1 && list->MultiSelect() == 0))
      return SelectByCharacter(*list, key_ascii);
    return list->UserToggle(list->ListIndex());
  }
}

int CharacterOf(int key_code, int shift) {
  if ((shift & vbAltMask) != 0) return 0;
  const bool letter = key_code >= 'A' && key_code <= 'Z';
  if ((shift & vbCtrlMask) != 0) {
    if (letter) return key_code - 'A' + 1;
    return key_code == vbKeyReturn ? '\n' : 0;
  }
  if (letter) return (shift & vbShiftMask) != 0 ? key_code : key_code - 'A' + 'a';
  if (key_code >= vbKey0 && key_code <= vbKey0 + 9) return (shift & vbShiftMask) != 0 ? 0 : key_code;
  switch (key_code) {
    case vbKeyReturn:
    case vbKeyBack:
    case vbKeyEscape:
    case vbKeySpace:
      return key_code;
    default:
      return 0;
  }
}

int KeyOf(char character) {
  const auto byte = static_cast<unsigned char>(runtime::UCase(std::string(1, character))[0]);
  const bool known = (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') || byte == ' ';
  return known ? byte : 0xBE;  // the key of the full stop stands for all punctuation
}

int ShiftOf(char character) {
  return character >= 'A' && character <= 'Z' ? vbShiftMask : 0;
}

}  // namespace corvane::forms
