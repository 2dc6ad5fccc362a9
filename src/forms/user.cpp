#include "forms/user.h"

#include "forms/key_effects.h"
#include "forms/mnemonic.h"

namespace corvane::forms {

namespace {

// What a press can land on.
bool IsSolid(const Control& control) {
  const ControlKind kind = control.Kind();
  return control.Visible() && kind != ControlKind::Line && kind != ControlKind::Shape && kind != ControlKind::Timer &&
         kind != ControlKind::ImageList;
}

bool IsPressButton(const Control& control) {
  return dynamic_cast<const Button*>(&control) != nullptr;
}

// The innermost control below a place in [control]; the place becomes one in it. The last made stands in front.
Control& ControlAt(Control& control, Twips& x, Twips& y) {
  const auto* container = dynamic_cast<const Container*>(&control);
  if (!container) return control;
  const auto& children = container->Controls();
  for (auto each = children.rbegin(); each != children.rend(); ++each) {
    const Rect& place = (*each)->Place();
    const bool inside =
        x >= place.left && y >= place.top && x < place.left + place.width && y < place.top + place.height;
    if (!inside || !IsSolid(**each)) continue;
    x -= place.left;
    y -= place.top;
    return ControlAt(**each, x, y);
  }
  return control;
}

forms::Menu* ItemCaptioned(const std::vector<forms::Menu*>& menus, std::string_view caption) {
  for (forms::Menu* menu : menus) {
    if (menu->Visible() && WithoutMnemonic(menu->Caption()) == caption) return menu;
  }
  return nullptr;
}

}  // namespace

template <class Act>
bool User::Do(Control& control, Act&& act) {
  if (!control.AcceptsInput()) return false;
  form_.Toolkit().Guard(act);
  ShowFocus();
  return true;
}

// False where the press was refused, too.
bool User::PressDown(Control& control, int button, int shift, Twips x, Twips y) {
  bool refused = false;
  return Do(control, [&] { refused = !control.UserMouseDown(button, shift, x, y); }) && !refused;
}

void User::ShowFocus() {
  Control* control = form_.IsActiveForm() ? form_.ActiveControl() : nullptr;
  if (control && control->Peer()) control->Peer()->TakeFocus();
}

bool User::Press(int key_code, int shift) {
  return TypeKey(key_code, shift, CharacterOf(key_code, shift));
}

bool User::Type(std::string_view text) {
  bool typed = true;
  for (size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\r' || text[at] == '\n') {
      if (text.substr(at, 2) == "\r\n") ++at;
      typed = Press(vbKeyReturn) && typed;
    } else {
      typed = TypeKey(KeyOf(text[at]), ShiftOf(text[at]), static_cast<unsigned char>(text[at])) && typed;
    }
  }
  return typed;
}

// The character goes to the control that got the key, the release to where the focus is by then.
bool User::TypeKey(int key_code, int shift, int key_ascii) {
  if (!form_.Visible() || form_.Toolkit().IsBlocked(form_)) return false;
  bool used_up = false;
  Control* control = nullptr;
  form_.Toolkit().Guard([&] {
    used_up = form_.UserDialogKey(key_code, shift);
    control = form_.ActiveControl();
    if (used_up) return;
    used_up = control ? control->UserKeyDown(key_code, shift) : form_.UserKeyDown(key_code, shift);
    if (!used_up && control) used_up = HaveKeyEffect(*control, key_code, shift);
  });
  bool clicks = false;
  if (!used_up && key_ascii != 0 && form_.Visible()) {
    form_.Toolkit().Guard([&] {
      const bool cancelled = control ? control->UserKeyPress(key_ascii) : form_.UserKeyPress(key_ascii);
      if (cancelled || !control) return;
      HaveCharacterEffect(*control, key_ascii);
      clicks = key_ascii == ' ' && IsPressButton(*control);
    });
  }
  form_.Toolkit().Guard([&] {
    if (!form_.Visible()) return;
    Control* now = form_.ActiveControl();
    now ? now->UserKeyUp(key_code, shift) : form_.UserKeyUp(key_code, shift);
  });
  if (clicks && form_.ActiveControl() == control) Do(*control, [&] { control->UserClick(); });
  return true;
}

bool User::Click(Control& control) {
  return ClickAt(control, control.Width() / 2, control.Height() / 2);
}

bool User::ClickAt(Control& control, Twips x, Twips y, int button, int shift) {
  Control& hit = ControlAt(control, x, y);
  const auto click = [&] {
    if (button == vbLeftButton && IsPressButton(hit)) hit.UserClick();
  };
  if (!PressDown(hit, button, shift, x, y)) return false;
  Do(hit, click);
  Do(hit, [&] { hit.UserMouseUp(button, shift, x, y); });
  return true;
}

bool User::DblClick(Control& control) {
  return DblClickAt(control, control.Width() / 2, control.Height() / 2);
}

bool User::DblClickAt(Control& control, Twips x, Twips y) {
  if (!ClickAt(control, x, y)) return false;
  Control& hit = ControlAt(control, x, y);
  Do(hit, [&] { hit.UserDblClick(); });
  Do(hit, [&] { hit.UserMouseUp(vbLeftButton, 0, x, y); });
  return true;
}

bool User::MoveOver(Control& control, Twips x, Twips y, int button, int shift) {
  Control& hit = ControlAt(control, x, y);
  return Do(hit, [&] { hit.UserMouseMove(button, shift, x, y); });
}

// The control that was pressed hears the moves and the release, wherever the pointer is.
bool User::Drag(Control& control, Twips x1, Twips y1, Twips x2, Twips y2) {
  Twips dx = x2 - x1, dy = y2 - y1;
  Control& hit = ControlAt(control, x1, y1);
  if (!PressDown(hit, vbLeftButton, 0, x1, y1)) return false;
  Do(hit, [&] { hit.UserMouseMove(vbLeftButton, 0, x1 + dx, y1 + dy); });
  Do(hit, [&] { hit.UserMouseUp(vbLeftButton, 0, x1 + dx, y1 + dy); });
  return true;
}

bool User::Choose(ListControl& list, long row) {
  if (row < 0 || row >= list.ListCount()) return false;
  if (auto* combo = dynamic_cast<ComboBox*>(&list)) return ChooseInCombo(*combo, row);
  if (!PressDown(list, vbLeftButton, 0, 0, 0)) return false;
  Do(list, [&] { list.UserSelect(row); });
  Do(list, [&] { list.UserMouseUp(vbLeftButton, 0, 0, 0); });
  return true;
}

bool User::ChooseInCombo(ComboBox& combo, long row) {
  if (!Do(combo, [&] { combo.UserFocus(); })) return false;
  Do(combo, [&] { combo.UserDropDown(); });
  return row < combo.ListCount() && Do(combo, [&] { combo.UserSelect(row); });
}

bool User::Choose(ListControl& list, std::string_view text) {
  for (long row = 0; row < list.ListCount(); ++row) {
    if (list.List(row) == text) return Choose(list, row);
  }
  return false;
}

bool User::DblClickRow(ListBox& list, long row) {
  if (!Choose(list, row)) return false;
  Do(list, [&] { list.UserDblClick(); });
  Do(list, [&] { list.UserMouseUp(vbLeftButton, 0, 0, 0); });
  return true;
}

bool User::Check(ListBox& list, long row) {
  return row >= 0 && row < list.ListCount() && Do(list, [&] {
           list.UserFocus();
           list.UserToggle(row);
         });
}

bool User::Scroll(ScrollBar& bar, long value) {
  return Do(bar, [&] { bar.UserScroll(value, false); });
}

bool User::Enter(TextBox& box, std::string_view text) {
  if (!Do(box, [&] { box.UserFocus(); }) || box.Locked()) return false;
  box.UserSelect(0, static_cast<long>(box.Text().size()));
  return text.empty() ? Press(vbKeyDelete) : Type(text);
}

bool User::Enter(ComboBox& box, std::string_view text) {
  if (!Do(box, [&] { box.UserFocus(); }) || box.Style() == 2 || box.Locked()) return false;
  Do(box, [&] { box.UserEdit(""); });
  return Type(text);
}

bool User::ClickButton(Toolbar& bar, int position) {
  if (position < 1 || position > bar.Count() || !bar.Button(position).Enabled) return false;
  return Do(bar, [&] { bar.UserButtonClick(position); });
}

bool User::ChooseButtonMenu(Toolbar& bar, int position, int entry) {
  if (position < 1 || position > bar.Count() || !bar.Button(position).Enabled) return false;
  return Do(bar, [&] { bar.UserButtonDropDown(position); }) &&
         Do(bar, [&] { bar.UserButtonMenuClick(position, entry); });
}

bool User::ChooseMenu(std::initializer_list<std::string_view> captions) {
  if (!form_.Visible() || form_.Toolkit().IsBlocked(form_)) return false;
  const std::vector<forms::Menu*>* level = &form_.Menus();
  forms::Menu* reached = nullptr;
  for (std::string_view caption : captions) {
    reached = ItemCaptioned(*level, caption);
    if (!reached || !reached->Enabled()) return false;
    form_.Toolkit().Guard([&] { reached->UserOpen(); });
    level = &reached->Items();
  }
  if (!reached || !reached->Enabled() || !reached->Visible()) return false;
  form_.Toolkit().Guard([&] { reached->UserClick(); });
  return true;
}

bool User::Close() {
  if (!form_.Visible() || form_.Toolkit().IsBlocked(form_)) return false;
  form_.Toolkit().Guard([&] { form_.UserClose(); });
  return true;
}

}  // namespace corvane::forms
