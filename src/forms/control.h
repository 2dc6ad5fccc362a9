// Control: what all controls have. Controls hold their own state with Visual Basic's semantics; a toolkit only shows
// it. They are members of their window class, made with the container that holds them and the name they go by.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/event.h"
#include "forms/property.h"
#include "forms/toolkit.h"
#include "forms/types.h"
#include "runtime/error.h"
#include "runtime/variant.h"

namespace corvane::forms {

class Container;
class Form;
using runtime::Error;
using runtime::Variant;

enum class ControlKind {
  Form,
  Label,
  TextBox,
  CommandButton,
  CheckBox,
  OptionButton,
  Frame,
  ListBox,
  ComboBox,
  PictureBox,
  Image,
  Line,
  Shape,
  HScrollBar,
  VScrollBar,
  Timer,
  Toolbar,
  ImageList,
  Menu,
  UserControl,
};

// "Label" <-> ControlKind::Label; "VB.Label" is understood too. Throws Error 380 for an unknown name.
std::string_view NameOf(ControlKind kind);
ControlKind KindNamed(std::string_view name);

class Control {
 public:
  // [index] is the place in a control array, -1 outside one.
  Control(Container& container, std::string name, int index = -1);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  virtual ControlKind Kind() const = 0;
  const std::string& Name() const { return name_; }
  int Index() const { return index_; }
  Container& ContainerOf() const { return *container_; }  // not of one that was removed
  Form& FormOf() const;

  Twips Left() const { return place_.left; }
  Twips Top() const { return place_.top; }
  Twips Width() const { return place_.width; }
  Twips Height() const { return place_.height; }
  const Rect& Place() const { return place_; }
  void SetLeft(Twips value) { Move(value, place_.top, place_.width, place_.height); }
  void SetTop(Twips value) { Move(place_.left, value, place_.width, place_.height); }
  void SetWidth(Twips value) { Move(place_.left, place_.top, value, place_.height); }
  void SetHeight(Twips value) { Move(place_.left, place_.top, place_.width, value); }
  // A negative size is Error 380. Raises Resize where the kind has it.
  void Move(Twips left, Twips top, Twips width, Twips height);

  bool Visible() const { return visible_; }
  void SetVisible(bool value);
  bool Enabled() const { return enabled_; }
  virtual void SetEnabled(bool value);
  // Whether it and all that holds it are visible (enabled).
  bool IsShown() const;
  bool IsActive() const;

  const std::string& Tag() const { return tag_; }
  void SetTag(std::string value) { tag_ = std::move(value); }
  const std::string& ToolTipText() const { return tool_tip_; }
  void SetToolTipText(std::string value);
  int TabIndex() const { return tab_index_; }
  void SetTabIndex(int value);
  bool TabStop() const { return tab_stop_; }
  void SetTabStop(bool value) { tab_stop_ = value; }
  Color BackColor() const { return back_color_; }
  virtual void SetBackColor(Color value);
  Color ForeColor() const { return fore_color_; }
  virtual void SetForeColor(Color value);
  const forms::Font& Font() const { return font_; }
  virtual void SetFont(const forms::Font& value);
  int MousePointer() const { return mouse_pointer_; }
  void SetMousePointer(int value);

  bool CausesValidation() const { return causes_validation_; }
  void SetCausesValidation(bool value) { causes_validation_ = value; }

  // Gives the focus: the other control's Validate, LostFocus, then GotFocus here. Error 5 when it or its form is hidden
  // or disabled, so also while its form loads. A user control hands the focus to its first control that can take it.
  void SetFocus();
  // Whether it, or a control inside it, has the focus of the active form.
  bool HasFocus() const;
  virtual bool CanTakeFocus() const { return false; }
  void ZOrder(int position = 0);  // 0 front, 1 back
  // Moves it into another container of the same form; it keeps its place in the container's coordinates.
  void SetContainer(Container& container);

  // By name, for what is built from texts. Error 438 for what the kind does not have.
  virtual Variant Get(Property property) const;
  virtual void Set(Property property, const Variant& value);

  // Events. A KeyCode or KeyAscii set to 0 cancels the key.
  Event<> Click, DblClick, GotFocus, LostFocus;
  Event<bool&> Validate;
  Event<int&, int> KeyDown, KeyUp;                              // KeyCode, Shift
  Event<int&> KeyPress;                                         // KeyAscii
  Event<int, int, Twips, Twips> MouseDown, MouseMove, MouseUp;  // Button, Shift, X, Y

  // The user's acts, for toolkits and tests. Each does what the user would see and raises the events in Visual Basic's
  // order; on a hidden or disabled control, or under a modal form, it does nothing.
  // Keys: first Form::UserDialogKey; when that did not use the key up, UserKeyDown, UserKeyPress for a character, then
  // UserKeyUp. They return true when the key was used up and the toolkit must not act on it itself.
  // Mouse: UserMouseDown, UserMouseUp. Labels, frames, images, picture boxes and user controls make their Click of it
  // themselves (after MouseUp, with either button). For buttons and lists the toolkit reports what its own widget made
  // of the press: UserClick, UserSelect, before UserMouseUp. The second press of a double click is UserDblClick alone.
  virtual bool UserKeyDown(int key_code, int shift);
  virtual bool UserKeyPress(int key_ascii);
  virtual void UserKeyUp(int key_code, int shift);
  // False: another control did not let the focus go, so the press, its click and its release are none.
  virtual bool UserMouseDown(int button, int shift, Twips x, Twips y);
  virtual void UserMouseMove(int button, int shift, Twips x, Twips y);
  virtual void UserMouseUp(int button, int shift, Twips x, Twips y);
  virtual void UserClick();
  virtual void UserDblClick();
  void UserFocus();  // the toolkit moved the focus here
  // Whether the user can reach it now.
  virtual bool AcceptsInput() const;

  forms::Peer* Peer() const { return peer_.get(); }

 protected:
  friend class Form;
  friend class Container;
  // Tells the toolkit.
  void Changed(Property property);
  virtual void OnResize() {}
  // Its toolkit's side was made: its form is being loaded, before Load; or it was made at run time.
  virtual void OnLoaded() {}
  virtual void OnGotFocus() { GotFocus(); }
  virtual void OnLostFocus() { LostFocus(); }
  // What the key does here when no handler cancelled it; true when it was used up.
  virtual bool OnKeyDown(int key_code, int shift);
  // A handler of KeyPress changed the character to another.
  virtual void OnKeyReplaced(int key_ascii);
  virtual bool ClicksOnRelease() const { return true; }
  virtual Twips MinimumHeight() const { return 0; }
  // For menus: it belongs to [container] but is no child of its surface.
  struct NotOnSurface {};
  Control(NotOnSurface, Container& container, std::string name, int index);

  Color back_color_ = kButtonFace, fore_color_ = kButtonText;
  forms::Font font_;
  Rect place_{0, 0, 1215, 495};

 private:
  void Leave();

  std::string name_;
  int index_;
  Form* form_;
  Container* container_;
  bool visible_ = true, enabled_ = true, tab_stop_ = true, causes_validation_ = true;
  int tab_index_ = 0, mouse_pointer_ = 0, pressed_button_ = 0;
  std::string tag_, tool_tip_;
  std::unique_ptr<forms::Peer> peer_;
};

// What can hold controls: forms, frames, picture boxes, user controls.
class Container {
 public:
  virtual ~Container();
  virtual Form& FormOfContainer() = 0;
  virtual Control* AsControl() { return nullptr; }  // null for a form
  // Direct children, in the order they were made.
  const std::vector<Control*>& Controls() const { return controls_; }

 private:
  friend class Control;
  std::vector<Control*> controls_;
};

}  // namespace corvane::forms
