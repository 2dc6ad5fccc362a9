// CommandButton, CheckBox, OptionButton.
#pragma once

#include "forms/control.h"

namespace corvane::forms {

// An "&" in the caption marks the access key.
class Button : public Control {
 public:
  using Control::Control;
  bool CanTakeFocus() const override { return true; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string value);
  PictureRef Picture() const { return picture_; }
  void SetPicture(PictureRef value);
  int Style() const { return style_; }  // 0 standard, 1 graphical
  void SetStyle(int value);
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 protected:
  bool ClicksOnRelease() const override { return false; }

 private:
  std::string caption_;
  PictureRef picture_;
  int style_ = 0;
};

class CommandButton : public Button {
 public:
  using Button::Button;
  ControlKind Kind() const override { return ControlKind::CommandButton; }
  bool Default() const { return default_; }
  void SetDefault(bool value);  // at most one of a form
  bool Cancel() const { return cancel_; }
  void SetCancel(bool value);
  // Assigning True raises Click; it reads False again.
  bool Value() const { return false; }
  void SetValue(bool value);
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 protected:
  bool OnKeyDown(int key_code, int shift) override;

 private:
  bool default_ = false, cancel_ = false;
};

enum CheckValue : int { vbUnchecked = 0, vbChecked = 1, vbGrayed = 2 };

class CheckBox : public Button {
 public:
  using Button::Button;
  ControlKind Kind() const override { return ControlKind::CheckBox; }
  int Value() const { return value_; }
  void SetValue(int value);   // raises Click when it differs; Error 380 outside 0 to 2
  void UserClick() override;  // turns it, then Click
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 protected:
  bool OnKeyDown(int key_code, int shift) override;
  Twips MinimumHeight() const override;

 private:
  int value_ = vbUnchecked;
};

class OptionButton : public Button {
 public:
  using Button::Button;
  ControlKind Kind() const override { return ControlKind::OptionButton; }
  bool Value() const { return value_; }
  // True clears the others of the same container, without their Click, and raises Click here when it was off.
  // False clears it silently.
  void SetValue(bool value);
  void UserClick() override;
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 protected:
  // The arrows choose among the options of the container.
  bool OnKeyDown(int key_code, int shift) override;
  Twips MinimumHeight() const override;

 private:
  bool value_ = false;
};

}  // namespace corvane::forms
