// Toolkit: what a GUI library implements so that windows can be seen. A thin view: it shows the state that controls
// hold and reports the user's acts to them (Control::User...); it decides nothing. HeadlessToolkit is the one without a
// display.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/canvas.h"
#include "forms/property.h"
#include "forms/types.h"

namespace corvane::forms {

class Control;
class Form;
class Menu;

// The toolkit's side of one control or form; owned by it, made when its form is loaded (containers and parent menus
// first, then told Property::All). It may be destroyed inside an act that it reports: a click can unload its form.
class Peer {
 public:
  virtual ~Peer() = default;
  // The state behind [property] has changed: show it. Property::All: show everything.
  virtual void Changed(Property property) = 0;
  virtual void TakeFocus() {}
  virtual void BringToFront(bool) {}                   // false: send to the back
  virtual forms::Canvas* Canvas() { return nullptr; }  // picture boxes only
};

// Visibility, caption, size and state come through Changed.
class FormPeer : public Peer {
 public:
  // Brings the window to the front and gives it the focus.
  virtual void Activate() = 0;
};

class Toolkit {
 public:
  virtual ~Toolkit() = default;

  virtual std::unique_ptr<FormPeer> NewFormPeer(Form& form) = 0;
  // Null for a kind that has nothing to show (an image list).
  virtual std::unique_ptr<Peer> NewPeer(Control& control) = 0;
  virtual TextMetrics& Metrics() = 0;
  // Client size to outer size of a window, for forms that give their size with the frame.
  virtual Rect FrameOf(const Form& form) = 0;  // left, top: caption and border; width, height: both borders together

  // Shows [form] and runs the message loop until it is hidden or unloaded; other windows take no input meanwhile.
  virtual void RunModal(Form& form) = 0;
  virtual void DoEvents() = 0;
  // Shows [menu]'s items at a place in [form] and waits; the chosen item's Click is raised before it returns.
  virtual void PopupMenu(Form& form, Menu& menu, Twips x, Twips y) = 0;
  // The control under the mouse pointer, or null: what GetCursorPos with WindowFromPoint tells.
  virtual Control* ControlUnderPointer() = 0;

  // Where every act of the user enters: runs [act]; an error in it ends the act, is told to OnFault, and never leaves.
  void Guard(const std::function<void()>& act) noexcept;
  std::function<void(const std::string& what)> OnFault;
  // Whether an act of the user is running.
  bool IsInAct() const { return acts_ > 0; }
  // The number of the act that is running, the innermost one; 0 while none is. No two acts have the same.
  long CurrentAct() const { return current_act_; }

  // Visible forms, the active one last.
  const std::vector<Form*>& ShownForms() const { return shown_; }
  Form* ActiveForm() const { return active_; }
  // Whether a modal form keeps input from [form].
  bool IsBlocked(const Form& form) const { return !modal_.empty() && modal_.back() != &form; }

 private:
  friend class Form;
  void FormShown(Form& form);
  // [tell]: the form hears LostFocus and Deactivate when another becomes active in its place.
  void FormGone(Form& form, bool tell);
  void Activate(Form& form);

  std::vector<Form*> shown_, modal_;
  Form* active_ = nullptr;
  int acts_ = 0;
  long current_act_ = 0, last_act_ = 0;
};

}  // namespace corvane::forms
