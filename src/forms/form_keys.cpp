// Keys that a form takes before its controls see them.
#include <algorithm>

#include "forms/controls.h"
#include "forms/mnemonic.h"

namespace corvane::forms {

namespace {

// The caption whose "&" makes an access key of [control]; null for kinds without one.
const std::string* AccessCaption(const Control& control) {
  if (const auto* button = dynamic_cast<const Button*>(&control)) return &button->Caption();
  if (const auto* frame = dynamic_cast<const Frame*>(&control)) return &frame->Caption();
  if (const auto* label = dynamic_cast<const Label*>(&control))
    return label->UseMnemonic() ? &label->Caption() : nullptr;
  return nullptr;
}

bool AnswersAccessKey(const Control& control, int key_code) {
  const std::string* caption = AccessCaption(control);
  return caption && AccessKeyOf(*caption) == key_code && control.IsShown() && control.IsActive();
}

Menu* ItemOfShortcut(const std::vector<Menu*>& menus, int key_code, int shift) {
  for (Menu* menu : menus) {
    if (!menu->Enabled()) continue;
    if (menu->ShortcutKey() == key_code && menu->ShortcutShift() == shift && menu->Visible()) return menu;
    if (Menu* item = ItemOfShortcut(menu->Items(), key_code, shift)) return item;
  }
  return nullptr;
}

}  // namespace

bool Form::UserDialogKey(int key_code, int shift) {
  if (!visible_ || toolkit_.IsBlocked(*this)) return true;
  if (UseShortcut(key_code, shift)) return true;
  if (shift == vbAltMask) return UseAccessKey(key_code);
  if (key_code == vbKeyTab && (shift == 0 || shift == vbShiftMask)) return UseTab(shift);
  if (shift == 0) return UseButtonKey(key_code);
  return false;
}

// Where no handler was called the form is still there.
bool Form::UserKey(int key_code, int shift) {
  if (UserDialogKey(key_code, shift)) return true;
  return active_control_ ? active_control_->UserKeyDown(key_code, shift) : UserKeyDown(key_code, shift);
}

bool Form::UseShortcut(int key_code, int shift) {
  Menu* item = key_code == 0 ? nullptr : ItemOfShortcut(menus_, key_code, shift);
  if (item) item->UserClick();
  return item != nullptr;
}

// A button is focused and clicked; a label or frame gives the focus to the control behind it in Tab order.
bool Form::UseAccessKey(int key_code) {
  const std::vector<Control*> order = TabOrder();
  const auto found = std::find_if(order.begin(), order.end(),
                                  [&](const Control* control) { return AnswersAccessKey(*control, key_code); });
  if (found == order.end()) return false;
  if (!(*found)->CanTakeFocus()) {
    if (Control* next = NextStop(*found, +1)) MoveFocus(next);
    return true;
  }
  MoveFocus(*found);
  if (active_control_ == *found) (*found)->UserClick();
  return true;
}

bool Form::UseTab(int shift) {
  Control* next = NextStop(active_control_, shift == vbShiftMask ? -1 : +1);
  if (next) MoveFocus(next);
  return next != nullptr;
}

// Enter is the focused button's own, else the default one's; Esc is the cancel button's. They move no focus.
bool Form::UseButtonKey(int key_code) {
  CommandButton* button = ButtonFor(key_code);
  if (!button || !button->AcceptsInput()) return false;
  button->UserClick();
  return true;
}

CommandButton* Form::ButtonFor(int key_code) const {
  if (key_code != vbKeyReturn && key_code != vbKeyEscape) return nullptr;
  if (key_code == vbKeyReturn) {
    if (auto* focused = dynamic_cast<CommandButton*>(active_control_)) return focused;
  }
  for (Control* control : AllControls()) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button && (key_code == vbKeyReturn ? button->Default() : button->Cancel())) return button;
  }
  return nullptr;
}

}  // namespace corvane::forms
