#include "forms/toolbar.h"

#include <utility>

#include "runtime/strings.h"

namespace corvane::forms {

namespace {

constexpr long kIndexOutOfBounds = 35600;

}  // namespace

ImageList::ImageList(Container& container, std::string name, int index) : Control(container, std::move(name), index) {
  place_ = {0, 0, 0, 0};
}

int ImageList::Add(PictureRef picture) {
  pictures_.push_back(std::move(picture));
  Changed(Property::Image);
  return Count();
}

PictureRef ImageList::Item(int position) const {
  return position >= 1 && position <= Count() ? pictures_[static_cast<size_t>(position) - 1] : nullptr;
}

ToolButton& Toolbar::ButtonAt(int position) {
  if (position < 1 || position > Count()) throw Error(kIndexOutOfBounds, "Index out of bounds");
  return buttons_[static_cast<size_t>(position) - 1];
}

const ToolButton& Toolbar::Button(int position) const {
  return const_cast<Toolbar*>(this)->ButtonAt(position);
}

int Toolbar::Add(ToolButton button) {
  buttons_.push_back(std::move(button));
  Changed(Property::Buttons);
  return Count();
}

int Toolbar::PositionOf(std::string_view key) const {
  const std::string wanted = runtime::UCase(key);
  for (int position = 1; position <= Count(); ++position) {
    if (runtime::UCase(Button(position).Key) == wanted) return position;
  }
  return 0;
}

void Toolbar::SetButtonEnabled(int position, bool value) {
  ButtonAt(position).Enabled = value;
  Changed(Property::Buttons);
}

void Toolbar::SetButtonVisible(int position, bool value) {
  ButtonAt(position).Visible = value;
  Changed(Property::Buttons);
}

void Toolbar::SetButtonPressed(int position, bool value) {
  ToolButton& button = ButtonAt(position);
  if (value && button.Style == ToolButtonStyle::ButtonGroup) ReleaseGroup(position);
  button.Pressed = value;
  Changed(Property::Buttons);
}

// Neighbouring group buttons are one group: one of them is down.
void Toolbar::ReleaseGroup(int position) {
  const auto release = [this](int from, int step) {
    for (int at = from; at >= 1 && at <= Count() && ButtonAt(at).Style == ToolButtonStyle::ButtonGroup; at += step) {
      ButtonAt(at).Pressed = false;
    }
  };
  release(position, -1);
  release(position + 1, +1);
}

void Toolbar::SetButtonMenus(int position, std::vector<ButtonMenu> menus) {
  ButtonAt(position).ButtonMenus = std::move(menus);
  Changed(Property::Buttons);
}

bool Toolbar::CanPress(int position) const {
  const ToolButton& button = Button(position);
  return AcceptsInput() && button.Enabled && button.Visible && button.Style != ToolButtonStyle::Separator &&
         button.Style != ToolButtonStyle::Placeholder;
}

void Toolbar::UserButtonClick(int position) {
  if (!CanPress(position)) return;
  const ToolButton& button = Button(position);
  if (button.Style == ToolButtonStyle::Check) SetButtonPressed(position, !button.Pressed);
  if (button.Style == ToolButtonStyle::ButtonGroup) SetButtonPressed(position, true);
  ButtonClick(position);
}

void Toolbar::UserButtonDropDown(int position) {
  if (CanPress(position) && Button(position).Style == ToolButtonStyle::DropDown) ButtonDropDown(position);
}

void Toolbar::UserButtonMenuClick(int position, int entry) {
  if (!CanPress(position)) return;
  const auto& menus = Button(position).ButtonMenus;
  if (entry < 1 || entry > static_cast<int>(menus.size()) || !menus[static_cast<size_t>(entry) - 1].Enabled) return;
  ButtonMenuClick(position, entry);
}

}  // namespace corvane::forms
