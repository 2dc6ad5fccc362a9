// Form: a window. Its class has the controls as members; it is loaded by the first Show or Load, and its design is set up
// in the class's constructor. Visual Basic's order of events: Load, Resize, Activate, and QueryUnload, Unload.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "forms/control.h"

namespace corvane::forms {

class Menu;

enum WindowStateValue : int { vbNormal = 0, vbMinimized = 1, vbMaximized = 2 };
enum class FormBorder : int { None = 0, FixedSingle = 1, Sizable = 2, FixedDialog = 3, FixedTool = 4, SizableTool = 5 };
// Why a form is unloaded (UnloadMode of QueryUnload).
enum class UnloadMode : int { ControlMenu = 0, Code = 1, Windows = 2, TaskManager = 3, MdiForm = 4, Owner = 5 };

class Form : public Container {
 public:
  Form(forms::Toolkit& toolkit, std::string name);
  ~Form() override;

  Form& FormOfContainer() override { return *this; }
  forms::Toolkit& Toolkit() const { return toolkit_; }
  const std::string& Name() const { return name_; }

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string value);
  // Outer size and place on the screen. A change of size raises Resize when the form is loaded.
  Twips Left() const { return place_.left; }
  Twips Top() const { return place_.top; }
  Twips Width() const { return place_.width; }
  Twips Height() const { return place_.height; }
  const Rect& Place() const { return place_; }
  void Move(Twips left, Twips top, Twips width, Twips height);
  void Move(Twips left, Twips top) { Move(left, top, place_.width, place_.height); }
  void SetWidth(Twips value) { Move(place_.left, place_.top, value, place_.height); }
  void SetHeight(Twips value) { Move(place_.left, place_.top, place_.width, value); }
  Twips ScaleWidth() const;   // inside the frame
  Twips ScaleHeight() const;
  int WindowState() const { return window_state_; }
  void SetWindowState(int value);
  FormBorder BorderStyle() const { return border_; }
  void SetBorderStyle(FormBorder value) { border_ = value; }
  Color BackColor() const { return back_color_; }
  void SetBackColor(Color value);
  const forms::Font& Font() const { return font_; }
  void SetFont(const forms::Font& value) { font_ = value; }
  bool KeyPreview() const { return key_preview_; }
  void SetKeyPreview(bool value) { key_preview_ = value; }
  PictureRef Icon() const { return icon_; }
  void SetIcon(PictureRef value);

  bool IsLoaded() const { return loaded_; }
  bool Visible() const { return visible_; }
  void SetVisible(bool value) { value ? Show() : Hide(); }
  // Makes the toolkit's side and raises Load; nothing when it is loaded.
  void LoadForm();
  // Modeless: returns at once. Error 401 under a modal form.
  void Show();
  // Returns when the form is hidden or unloaded. Error 400 when it is visible.
  void ShowModal();
  void Hide();
  // Raises QueryUnload and Unload; returns false when a handler cancelled. The controls lose their toolkit's side.
  bool Unload(UnloadMode mode = UnloadMode::Code);
  void SetFocus();

  Control* ActiveControl() const { return active_control_; }
  // A control by name (and index), without case; null if there is none. Menus too.
  Control* Find(std::string_view name, int index = -1) const;
  // All controls, nested ones behind their containers.
  std::vector<Control*> AllControls() const;
  // Makes a control of a kind at run time ("VB.Label" or "Label"); the form owns it. Error 380 for an unknown kind.
  Control& AddControl(std::string_view kind, std::string name, Container& container, int index = -1);
  void RemoveControl(Control& control);

  // The menus of the menu bar, and those that only pop up (their Visible is false).
  const std::vector<Menu*>& Menus() const { return menus_; }
  void PopupMenu(Menu& menu, Twips x, Twips y);

  Event<> Load, Activate, Deactivate, Resize, Terminate;
  Event<bool&, UnloadMode> QueryUnload;
  Event<bool&> UnloadEvent;
  Event<int&, int> KeyDown, KeyUp;  // first, with KeyPreview
  Event<int&> KeyPress;

  // The user's acts.
  void UserClose() { Unload(UnloadMode::ControlMenu); }
  void UserResize(Twips width, Twips height);
  void UserMove(Twips left, Twips top);
  void UserWindowState(int state);
  void UserActivate(bool active);
  // Tab, Enter and Esc buttons, access keys (Alt and a letter), menu shortcuts. True when the key was used up.
  bool UserDialogKey(int key_code, int shift);

  forms::FormPeer* Peer() const { return peer_.get(); }

 private:
  friend class Control;
  friend class Menu;
  void Register(Control& control);
  void Forget(Control& control);
  void MoveFocus(Control* to);
  void MakePeers();

  forms::Toolkit& toolkit_;
  std::string name_, caption_;
  Rect place_{0, 0, 4800, 3600};
  int window_state_ = vbNormal;
  FormBorder border_ = FormBorder::Sizable;
  Color back_color_ = kButtonFace;
  forms::Font font_;
  bool loaded_ = false, visible_ = false, modal_ = false, key_preview_ = false, unloading_ = false;
  PictureRef icon_;
  Control* active_control_ = nullptr;
  std::vector<Menu*> menus_;
  std::vector<std::unique_ptr<Control>> made_;  // by AddControl
  std::unique_ptr<forms::FormPeer> peer_;
};

}  // namespace corvane::forms
