// Toolkit: what a GUI library implements so that windows can be seen. A thin view: it shows the state that controls hold and
// reports the user's acts to them (Control::User...); it decides nothing. HeadlessToolkit is the one without a display.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "forms/canvas.h"
#include "forms/property.h"
#include "forms/types.h"

namespace corvane::forms {

class Control;
class Form;
class Menu;

// The toolkit's side of one control or form; owned by it, made when its form is loaded.
class Peer {
 public:
  virtual ~Peer() = default;
  // The state behind [property] has changed: show it. Property::All: show everything.
  virtual void Changed(Property property) = 0;
  virtual void TakeFocus() {}
  virtual void BringToFront(bool) {}  // false: send to the back
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
  virtual bool IsMouseButtonDown() = 0;

  // Where every act of the user enters: runs [act]; an error in it ends the act, is told to OnFault, and never leaves.
  void Guard(const std::function<void()>& act) noexcept;
  std::function<void(const std::string& what)> OnFault;
};

}  // namespace corvane::forms
