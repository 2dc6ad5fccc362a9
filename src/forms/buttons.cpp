#include "forms/buttons.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"
#include "forms/property_table.h"

namespace corvane::forms {

namespace {

constexpr PropertyEntry<Button> kButton[] = {
    Entry<Button, &Button::Caption, &Button::SetCaption>(Property::Caption),
    Entry<Button, &Button::Picture, &Button::SetPicture>(Property::Picture),
    Entry<Button, &Button::Style, &Button::SetStyle>(Property::Style),
};
constexpr PropertyEntry<CommandButton> kCommandButton[] = {
    Entry<CommandButton, &CommandButton::Default, &CommandButton::SetDefault>(Property::Default),
    Entry<CommandButton, &CommandButton::Cancel, &CommandButton::SetCancel>(Property::Cancel),
    Entry<CommandButton, &CommandButton::Value, &CommandButton::SetValue>(Property::Value),
};
constexpr PropertyEntry<CheckBox> kCheckBox[] = {
    Entry<CheckBox, &CheckBox::Value, &CheckBox::SetValue>(Property::Value),
};
constexpr PropertyEntry<OptionButton> kOptionButton[] = {
    Entry<OptionButton, &OptionButton::Value, &OptionButton::SetValue>(Property::Value),
};

int DirectionOf(int key_code) {
  switch (key_code) {
    case vbKeyUp:
    case vbKeyLeft:
      return -1;
    case vbKeyDown:
    case vbKeyRight:
      return +1;
    default:
      return 0;
  }
}

// The arrows walk over the controls as Tab does.
bool WalkByArrow(Control& control, int key_code, int shift) {
  const int direction = DirectionOf(key_code);
  if (direction == 0 || shift != 0) return false;
  return control.FormOf().UserDialogKey(vbKeyTab, direction < 0 ? vbShiftMask : 0);
}

// Clears that flag of the form's other buttons: at most one is the default (cancel) button.
template <class Clear>
void ForOtherButtons(CommandButton& button, Clear&& clear) {
  for (Control* control : button.FormOf().AllControls()) {
    auto* other = dynamic_cast<CommandButton*>(control);
    if (other && other != &button) clear(*other);
  }
}

// The options of [option]'s group that the user can reach, in Tab order.
std::vector<OptionButton*> GroupOf(const OptionButton& option) {
  std::vector<OptionButton*> group;
  for (Control* control : option.FormOf().TabOrder()) {
    auto* sibling = dynamic_cast<OptionButton*>(control);
    if (sibling && &sibling->ContainerOf() == &option.ContainerOf() && sibling->AcceptsInput()) {
      group.push_back(sibling);
    }
  }
  return group;
}

}  // namespace

void Button::SetCaption(std::string value) {
  if (caption_ == value) return;
  caption_ = std::move(value);
  Changed(Property::Caption);
}

void Button::SetPicture(PictureRef value) {
  picture_ = std::move(value);
  Changed(Property::Picture);
}

void Button::SetStyle(int value) {
  if (value < 0 || value > 1) throw Error(runtime::kInvalidPropertyValue);
  style_ = value;
  Changed(Property::Style);
}

Variant Button::Get(Property property) const {
  return GetBy<Control>(kButton, *this, property);
}
void Button::Set(Property property, const Variant& value) {
  SetBy<Control>(kButton, *this, property, value);
}

void CommandButton::SetDefault(bool value) {
  if (default_ == value) return;
  if (value) ForOtherButtons(*this, [](CommandButton& other) { other.SetDefault(false); });
  default_ = value;
  Changed(Property::Default);
}

void CommandButton::SetCancel(bool value) {
  if (cancel_ == value) return;
  if (value) ForOtherButtons(*this, [](CommandButton& other) { other.SetCancel(false); });
  cancel_ = value;
  Changed(Property::Cancel);
}

void CommandButton::SetValue(bool value) {
  if (value) Click();
}

bool CommandButton::OnKeyDown(int key_code, int shift) {
  return WalkByArrow(*this, key_code, shift);
}

Variant CommandButton::Get(Property property) const {
  return GetBy<Button>(kCommandButton, *this, property);
}
void CommandButton::Set(Property property, const Variant& value) {
  SetBy<Button>(kCommandButton, *this, property, value);
}

void CheckBox::SetValue(int value) {
  if (value < vbUnchecked || value > vbGrayed) throw Error(runtime::kInvalidPropertyValue);
  if (value_ == value) return;
  value_ = value;
  Changed(Property::Value);
  Click();
}

void CheckBox::UserClick() {
  if (AcceptsInput()) SetValue(value_ == vbUnchecked ? vbChecked : vbUnchecked);
}

bool CheckBox::OnKeyDown(int key_code, int shift) {
  return WalkByArrow(*this, key_code, shift);
}

Twips CheckBox::MinimumHeight() const {
  return FormOf().Toolkit().Metrics().TextHeight(Font());
}

Variant CheckBox::Get(Property property) const {
  return GetBy<Button>(kCheckBox, *this, property);
}
void CheckBox::Set(Property property, const Variant& value) {
  SetBy<Button>(kCheckBox, *this, property, value);
}

void OptionButton::SetValue(bool value) {
  if (value_ == value) return;
  if (value) {
    for (Control* control : ContainerOf().Controls()) {
      if (auto* sibling = dynamic_cast<OptionButton*>(control)) sibling->SetValue(false);
    }
  }
  value_ = value;
  if (value) SetTabStop(true);
  Changed(Property::Value);
  if (value) Click();
}

void OptionButton::UserClick() {
  if (AcceptsInput()) SetValue(true);
}

bool OptionButton::OnKeyDown(int key_code, int shift) {
  const int direction = DirectionOf(key_code);
  if (direction == 0 || shift != 0) return false;
  const std::vector<OptionButton*> group = GroupOf(*this);
  const auto at = std::find(group.begin(), group.end(), this);
  if (at == group.end()) return false;
  const long count = static_cast<long>(group.size());
  OptionButton& next = *group[static_cast<size_t>((at - group.begin() + direction + count) % count)];
  if (&next == this) return true;
  next.SetFocus();
  if (next.HasFocus()) next.UserClick();
  return true;
}

Twips OptionButton::MinimumHeight() const {
  return FormOf().Toolkit().Metrics().TextHeight(Font());
}

Variant OptionButton::Get(Property property) const {
  return GetBy<Button>(kOptionButton, *this, property);
}
void OptionButton::Set(Property property, const Variant& value) {
  SetBy<Button>(kOptionButton, *this, property, value);
}

}  // namespace corvane::forms
