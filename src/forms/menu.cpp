#include "forms/menu.h"

#include <array>
#include <utility>

#include "forms/form.h"
#include "forms/property_table.h"
#include "runtime/strings.h"

namespace corvane::forms {

namespace {

constexpr PropertyEntry<Menu> kProperties[] = {
    Entry<Menu, &Menu::Caption, &Menu::SetCaption>(Property::Caption),
    Entry<Menu, &Menu::Checked, &Menu::SetChecked>(Property::Checked),
    Entry<Menu, &Menu::Shortcut, &Menu::SetShortcut>(Property::Shortcut),
};

struct KeyName {
  std::string_view name;
  int key;
};

constexpr KeyName kKeyNames[] = {
    {"INSERT", vbKeyInsert}, {"DEL", vbKeyDelete}, {"DELETE", vbKeyDelete}, {"BKSP", vbKeyBack}, {"BS", vbKeyBack}};

struct KeyText {
  int key;
  std::string_view text;
};

constexpr KeyText kKeyTexts[] = {
    {vbKeyBack, "Backspace"}, {vbKeyTab, "Tab"},    {vbKeyReturn, "Enter"}, {vbKeyEscape, "Esc"},
    {vbKeySpace, "Space"},    {vbKeyInsert, "Ins"}, {vbKeyDelete, "Del"},
};

int KeyNamed(std::string_view name) {
  for (const KeyName& each : kKeyNames) {
    if (each.name == name) return each.key;
  }
  if (name.size() < 2 || name[0] != 'F') return 0;
  const int number = static_cast<int>(runtime::Val(name.substr(1)));
  return number >= 1 && number <= 16 ? vbKeyF1 + number - 1 : 0;
}

// The text behind the signs for Shift, Ctrl and Alt.
std::string_view WithoutSigns(std::string_view shortcut) {
  const size_t at = shortcut.find_first_not_of("+^%");
  return at == std::string_view::npos ? std::string_view() : shortcut.substr(at);
}

}  // namespace

Menu::Menu(Container& container, std::string name, std::string caption)
    : Control(NotOnSurface{}, container, std::move(name), -1), caption_(std::move(caption)) {
  FormOf().menus_.push_back(this);
}

Menu::Menu(Menu& parent, std::string name, std::string caption, int index)
    : Control(NotOnSurface{}, parent.ContainerOf(), std::move(name), index),
      parent_(&parent),
      caption_(std::move(caption)) {
  parent.items_.push_back(this);
}

Menu::~Menu() {
  for (Menu* item : items_) item->parent_ = nullptr;
  std::erase(parent_ ? parent_->items_ : FormOf().menus_, this);
}

void Menu::SetCaption(std::string value) {
  if (caption_ == value) return;
  caption_ = std::move(value);
  Changed(Property::Caption);
}

void Menu::SetChecked(bool value) {
  if (checked_ == value) return;
  checked_ = value;
  Changed(Property::Checked);
}

void Menu::SetShortcut(std::string value) {
  shortcut_ = std::move(value);
  Changed(Property::Shortcut);
}

int Menu::ShortcutKey() const {
  const std::string key = runtime::UCase(WithoutSigns(shortcut_));
  if (key.size() == 1) return static_cast<unsigned char>(key[0]);
  if (key.size() > 2 && key.front() == '{' && key.back() == '}') return KeyNamed(key.substr(1, key.size() - 2));
  return 0;
}

int Menu::ShortcutShift() const {
  const std::string_view signs(shortcut_.data(), shortcut_.size() - WithoutSigns(shortcut_).size());
  int shift = 0;
  if (runtime::Holds(signs, "+")) shift |= vbShiftMask;
  if (runtime::Holds(signs, "^")) shift |= vbCtrlMask;
  if (runtime::Holds(signs, "%")) shift |= vbAltMask;
  return shift;
}

bool Menu::AcceptsInput() const {
  return Enabled() && FormOf().Visible() && !FormOf().Toolkit().IsBlocked(FormOf());
}

void Menu::UserOpen() {
  if (AcceptsInput() && !items_.empty()) Click();
}

void Menu::UserClick() {
  if (AcceptsInput() && Visible() && !IsSeparator() && items_.empty()) Click();
}

Variant Menu::Get(Property property) const {
  return GetBy<Control>(kProperties, *this, property);
}
void Menu::Set(Property property, const Variant& value) {
  SetBy<Control>(kProperties, *this, property, value);
}

std::string Menu::ShortcutText() const {
  const int key = ShortcutKey(), shift = ShortcutShift();
  if (key == 0) return {};
  std::string text;
  if (shift & vbCtrlMask) text += "Ctrl+";
  if (shift & vbShiftMask) text += "Shift+";
  if (shift & vbAltMask) text += "Alt+";
  if (key >= vbKeyF1 && key < vbKeyF1 + 16) return text + "F" + std::to_string(key - vbKeyF1 + 1);
  for (const KeyText& each : kKeyTexts) {
    if (each.key == key) return text.append(each.text);
  }
  return text + static_cast<char>(key);
}

}  // namespace corvane::forms
