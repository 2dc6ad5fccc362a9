// Form: a window. Its class has the controls as members; it is loaded by the first Show or LoadForm, and its design is
// set up in the class's constructor (Initialize; its destructor is Terminate). Visual Basic's order of events: Load,
// Resize, Activate, GotFocus of the first control; QueryUnload, Unload. Unload takes away the toolkit's side and all
// controls made at run time, and ends the form's life on the screen; its member controls and plain members keep what
// they hold, and a later Load shows it. A window that must come up fresh is either made anew by its owner (hold it by
// unique_ptr), or sets its controls in Load.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/control.h"

namespace corvane::forms {

class CommandButton;
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
  Twips ScaleWidth() const;  // inside the frame
  Twips ScaleHeight() const;
  int WindowState() const { return window_state_; }
  void SetWindowState(int value);
  FormBorder BorderStyle() const { return border_; }
  void SetBorderStyle(FormBorder value) { border_ = value; }
  Color BackColor() const { return back_color_; }
  void SetBackColor(Color value);
  const forms::Font& Font() const { return font_; }
  void SetFont(const forms::Font& value) { font_ = value; }
  Twips TextWidth(std::string_view text) const;   // of the widest line, in the form's font
  Twips TextHeight(std::string_view text) const;  // of all its lines
  const std::string& Tag() const { return tag_; }
  void SetTag(std::string value) { tag_ = std::move(value); }
  int MousePointer() const { return mouse_pointer_; }
  void SetMousePointer(int value);
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
  // Error 5 when it is not visible.
  void SetFocus();
  bool IsModal() const { return modal_; }
  // The window the user works in; the last one of this toolkit that was activated.
  bool IsActiveForm() const;

  Control* ActiveControl() const { return active_control_; }
  // A control by name (and index), without case; null if there is none. Menus too.
  Control* Find(std::string_view name, int index = -1) const;
  // All controls, nested ones behind their containers.
  std::vector<Control*> AllControls() const;
  // The order in which Tab visits controls, whether they can take the focus now or not: by TabIndex, those of a user
  // control in its place.
  std::vector<Control*> TabOrder() const;
  // Makes a control of a kind at run time ("VB.Label" or "Label"), invisible; the form owns it until it is unloaded.
  // Error 380 for an unknown kind, 727 for a name that is in use.
  Control& AddControl(std::string_view kind, std::string name, Container& container, int index = -1);
  void RemoveControl(Control& control);  // Error 362 for one that AddControl did not make
  // Takes over a control that was made by hand at run time, and gives it its toolkit's side.
  void Adopt(std::unique_ptr<Control> control);

  // [hook] runs when the form is unloaded, before the controls made at run time go; [owner] takes it back by
  // DropUnloadHook.
  void AddUnloadHook(const void* owner, std::function<void()> hook);
  void DropUnloadHook(const void* owner);

  // The menus of the menu bar, and those that only pop up (their Visible is false).
  const std::vector<Menu*>& Menus() const { return menus_; }
  bool ShowsMenuBar() const;
  bool HasMenu(const Menu* item) const;  // at any depth; [item] may be gone
  // The menu's own Click, then its items; the chosen item's Click comes before it returns.
  void PopupMenu(Menu& menu, Twips x, Twips y);

  Event<> Load, Activate, Deactivate, Resize;
  Event<> Click;                // on the surface itself
  Event<> GotFocus, LostFocus;  // only of a form without a control that can take the focus
  Event<bool&, UnloadMode> QueryUnload;
  Event<bool&> UnloadEvent;
  Event<int&, int> KeyDown, KeyUp;  // first, with KeyPreview
  Event<int&> KeyPress;

  // The user's acts.
  void UserClose() { Unload(UnloadMode::ControlMenu); }
  void UserResize(Twips width, Twips height);  // outer size
  void UserMove(Twips left, Twips top);
  void UserWindowState(int state);
  // The window has another size because it was shown, or in another state: Resize comes of that.
  void NoteSize(Twips width, Twips height);
  // The window became the active one of the screen. Another form is told Deactivate first; a window of another program
  // in front of it changes nothing, so false is passed over.
  void UserActivate(bool active);
  // A key while no control has the focus: the form's own events.
  bool UserKeyDown(int key_code, int shift);
  bool UserKeyPress(int key_ascii);
  void UserKeyUp(int key_code, int shift);
  void UserClick();
  // Keys that a window takes before its controls see them: shortcuts of menus, access keys (Alt and a letter; those of
  // the menu bar are the toolkit's), Tab and Shift+Tab, Enter and Esc for buttons. True when the key was used up.
  bool UserDialogKey(int key_code, int shift);
  // That, and what it leaves to the control with the focus, else to the form. True when the key was used up.
  bool UserKey(int key_code, int shift);

  forms::FormPeer* Peer() const { return peer_.get(); }

 private:
  friend class Control;
  friend class Menu;
  friend class Toolkit;
  void Register(Control& control);
  void Forget(Control& control);
  enum class FocusMove { ByCode, ByToolkit /* its focus is there already */, Forced /* nobody is asked */ };
  void MoveFocus(Control* to, FocusMove how = FocusMove::ByCode);
  bool MayLeave(Control& from, const Control& to, FocusMove how);
  void FocusLeaves(Control& control);  // it was hidden or disabled
  Control* NextStop(Control* from, int direction) const;
  void GainActivation();
  void LoseActivation();
  void TellFocus(Control* from, Control* to);
  void MakePeers();
  void MakePeer(Control& control);
  void DropPeers();
  void LoadToShow();
  void Appear();
  void Renumber(Control& control, int tab_index);
  bool UseShortcut(int key_code, int shift);
  bool UseAccessKey(int key_code);
  bool UseTab(int shift);
  bool UseButtonKey(int key_code);
  CommandButton* ButtonFor(int key_code) const;

  forms::Toolkit& toolkit_;
  std::string name_, caption_, tag_;
  Rect place_{0, 0, 4800, 3600};
  int window_state_ = vbNormal;
  FormBorder border_ = FormBorder::Sizable;
  Color back_color_ = kButtonFace;
  forms::Font font_;
  bool loaded_ = false, visible_ = false, modal_ = false, key_preview_ = false, unloading_ = false, resized_ = false;
  int mouse_pointer_ = 0, controls_made_ = 0;
  PictureRef icon_;
  Control* active_control_ = nullptr;
  Control* focused_ = nullptr;  // the one that was told GotFocus last, while the form is the active one
  std::vector<Menu*> menus_;
  std::vector<std::pair<const void*, std::function<void()>>> unload_hooks_;
  std::vector<std::unique_ptr<Control>> made_;     // at run time
  std::vector<std::unique_ptr<Control>> dropped_;  // removed while one of their own acts may still run
  std::unique_ptr<forms::FormPeer> peer_;
};

}  // namespace corvane::forms
