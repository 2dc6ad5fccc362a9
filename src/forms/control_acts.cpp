// What the user does to a control.
#include "forms/control.h"
#include "forms/form.h"

namespace corvane::forms {

bool Control::UserKeyDown(int key_code, int shift) {
  if (!AcceptsInput()) return true;
  if (form_->KeyPreview()) form_->KeyDown(key_code, shift);
  if (key_code != 0) KeyDown(key_code, shift);
  return key_code == 0 || OnKeyDown(key_code, shift);
}

bool Control::UserKeyPress(int key_ascii) {
  if (!AcceptsInput()) return true;
  const int pressed = key_ascii;
  if (form_->KeyPreview()) form_->KeyPress(key_ascii);
  if (key_ascii != 0) KeyPress(key_ascii);
  if (key_ascii == pressed) return false;
  if (key_ascii != 0) OnKeyReplaced(key_ascii);
  return true;
}

void Control::UserKeyUp(int key_code, int shift) {
  if (!AcceptsInput()) return;
  if (form_->KeyPreview()) form_->KeyUp(key_code, shift);
  if (key_code != 0) KeyUp(key_code, shift);
}

bool Control::UserMouseDown(int button, int shift, Twips x, Twips y) {
  if (!AcceptsInput()) return false;
  UserFocus();
  if (CanTakeFocus() && form_->IsActiveForm() && !HasFocus()) return false;
  pressed_button_ = button;
  MouseDown(button, shift, x, y);
  return true;
}

void Control::UserMouseMove(int button, int shift, Twips x, Twips y) {
  if (AcceptsInput()) MouseMove(button, shift, x, y);
}

void Control::UserMouseUp(int button, int shift, Twips x, Twips y) {
  if (!AcceptsInput()) return;
  const bool inside = x >= 0 && y >= 0 && x < Width() && y < Height();
  const bool clicks = ClicksOnRelease() && pressed_button_ == button && inside;
  pressed_button_ = 0;
  MouseUp(button, shift, x, y);
  if (clicks) Click();
}

void Control::UserClick() {
  if (AcceptsInput()) Click();
}

void Control::UserDblClick() {
  if (!AcceptsInput()) return;
  pressed_button_ = 0;
  DblClick();
}

void Control::UserFocus() {
  if (CanTakeFocus() && AcceptsInput()) form_->MoveFocus(this, Form::FocusMove::ByToolkit);
}

bool Control::OnKeyDown(int, int) {
  return false;
}

void Control::OnKeyReplaced(int) {}

}  // namespace corvane::forms
