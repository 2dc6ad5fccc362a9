// Menu: an item of the menu bar or of a popup menu, with the items below it.
#pragma once

#include "forms/control.h"

namespace corvane::forms {

class Menu : public Control {
 public:
  // A top-level menu of a form, or one that a control pops up. One that only pops up is made invisible.
  Menu(Container& container, std::string name, std::string caption);
  Menu(Menu& parent, std::string name, std::string caption, int index = -1);
  ~Menu() override;
  ControlKind Kind() const override { return ControlKind::Menu; }

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string value);
  bool IsSeparator() const { return caption_ == "-"; }
  bool Checked() const { return checked_; }
  void SetChecked(bool value);
  const std::string& Shortcut() const { return shortcut_; }  // "^S", "{F5}", "+^{F1}"
  void SetShortcut(std::string value);
  const std::vector<Menu*>& Items() const { return items_; }
  Menu* Parent() const { return parent_; }
  bool IsOfControl() const { return ContainerOf().AsControl() != nullptr; }  // not one of the form itself
  void UserClick() override;  // nothing on a disabled or hidden item, a separator, or one with items
  // Whether it is enabled on a form that takes input; a hidden menu can still pop up.
  bool AcceptsInput() const override;
  // Its items are about to be shown, in the menu bar or by PopupMenu: raises Click, as Visual Basic does.
  void UserOpen();
  // The key that "^S" or "{F5}" names, and its shift state; 0 for a text that names none.
  int ShortcutKey() const;
  int ShortcutShift() const;
  std::string ShortcutText() const;  // as menus show it: "Ctrl+F2"; empty for none
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 private:
  friend class Form;
  Menu* parent_ = nullptr;
  std::string caption_, shortcut_;
  bool checked_ = false;
  std::vector<Menu*> items_;
};

}  // namespace corvane::forms
