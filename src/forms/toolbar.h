// ImageList, and Toolbar with its buttons and their drop-downs (the common controls of the platform).
#pragma once

#include "forms/control.h"

namespace corvane::forms {

// Pictures by position from 1.
class ImageList : public Control {
 public:
  ImageList(Container& container, std::string name, int index = -1);
  ControlKind Kind() const override { return ControlKind::ImageList; }
  int Add(PictureRef picture);  // returns its position
  int Count() const { return static_cast<int>(pictures_.size()); }
  PictureRef Item(int position) const;  // Nothing outside the list
  void Clear() { pictures_.clear(); }

 private:
  std::vector<PictureRef> pictures_;
};

enum class ToolButtonStyle : int {
  Default = 0,
  Check = 1,
  ButtonGroup = 2,
  Separator = 3,
  Placeholder = 4,
  DropDown = 5
};

struct ButtonMenu {
  std::string Key, Text;
  bool Enabled = true;
};

struct ToolButton {
  std::string Key, Caption, ToolTipText;
  ToolButtonStyle Style = ToolButtonStyle::Default;
  int Image = 0;  // position in the image list, 0 for none
  bool Enabled = true, Visible = true, Pressed = false;
  std::vector<ButtonMenu> ButtonMenus = {};  // of a drop-down
};

class Toolbar : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::Toolbar; }
  void SetImageList(const forms::ImageList* images) { images_ = images; }
  const forms::ImageList* ImageListOf() const { return images_; }
  int Add(ToolButton button);  // returns its position from 1
  int Count() const { return static_cast<int>(buttons_.size()); }
  const ToolButton& Button(int position) const;  // Error 35600 outside the bar
  int PositionOf(std::string_view key) const;    // 0 if there is none
  void SetButtonEnabled(int position, bool value);
  void SetButtonVisible(int position, bool value);
  void SetButtonPressed(int position, bool value);  // of a group, the others come up
  void SetButtonMenus(int position, std::vector<ButtonMenu> menus);

  Event<int> ButtonClick;           // position
  Event<int, int> ButtonMenuClick;  // position of the button, of the entry from 1
  Event<int> ButtonDropDown;
  void UserButtonClick(int position);     // nothing on a disabled one
  void UserButtonDropDown(int position);  // its menu is about to open
  void UserButtonMenuClick(int position, int entry);

 protected:
  bool ClicksOnRelease() const override { return false; }

 private:
  ToolButton& ButtonAt(int position);
  void ReleaseGroup(int position);
  bool CanPress(int position) const;
  std::vector<ToolButton> buttons_;
  const forms::ImageList* images_ = nullptr;
};

}  // namespace corvane::forms
