// ControlPeer: what the native windows of all control kinds have in common.
#pragma once

#include <functional>
#include <memory>

#include "forms/control.h"
#include "toolkit_win32/window.h"

namespace corvane::toolkit_win32 {

class Win32Toolkit;

class WindowPeer : public forms::Peer, public MessageSink {
 public:
  virtual HWND Handle() const = 0;
  // Where the controls stand that it contains.
  virtual HWND Inside() const { return Handle(); }
  virtual forms::Control* ControlOf() { return nullptr; }  // null for a form
};

class ControlPeer : public WindowPeer {
 public:
  ControlPeer(Win32Toolkit& toolkit, forms::Control& control);
  ~ControlPeer() override;

  void Changed(forms::Property property) override;
  void TakeFocus() override;
  void BringToFront(bool front) override;

  HWND Handle() const override { return window_.Handle(); }
  forms::Control* ControlOf() override { return &control_; }

 protected:
  enum class Mouse {
    Untold,       // the kind has no mouse events
    ActsLast,     // the control is told of the button, then the native window acts
    ReleasesLast  // what the native window makes of a release (a click, a selection) is reported before MouseUp
  };
  // To be called by the constructor of a kind. Adds WS_CHILD and the clipping styles; the window stands in the
  // control's container, invisible, in front of its siblings.
  void Create(Window::Kind kind, Mouse mouse);

  // Shows what the kind alone has. Property::All: all of it.
  virtual void ShowOwn(forms::Property) {}
  virtual RECT ShownPlace() const;  // pixels of the container
  virtual void ShowPlace();
  virtual void ShowFont();
  virtual void ShowColors();
  virtual HWND FocusTarget() const { return window_.Handle(); }

  // The messages that are not those of every control. A window of a part (Window::Attach) comes here as well.
  virtual LRESULT OnOwnMessage(Window& window, const Message& message) { return window.Default(message); }
  // Answers the native control's questions for its colours; a kind that hears notices asks this for the rest.
  std::optional<LRESULT> OnNotice(Window& window, const Message& message) override;
  // Keys, focus, mouse, pointer; then OnOwnMessage.
  LRESULT OnMessage(Window& window, const Message& message) override;
  bool OnKey(Window& window, int key_code, int shift) override;

  // Reports an act of the user; nothing while the logic's own state is being shown.
  void Report(const std::function<void()>& act);
  // As Report, then shows the state again that the act has left, where this peer still lives.
  void ReportThenShow(forms::Property property, const std::function<void()>& act);
  bool IsShowing() const { return showing_ > 0; }
  // Expires with this peer.
  Life LifeOfThis() const { return life_; }

  Win32Toolkit& toolkit_;
  forms::Control& control_;
  Window window_;

 private:
  // Runs [act]; false when the control lost its windows in it or it failed: then nothing more is to be done.
  bool Tell(const std::function<void()>& act);
  bool CharacterTyped(wchar_t character);
  bool FocusCame();
  bool FocusByMouse();
  bool ShowPointer() const;
  void ShowEnabled();
  void ShowVisible();
  LRESULT MousePressed(Window& window, const Message& message);
  LRESULT MouseReleased(Window& window, const Message& message);
  LRESULT MouseMoved(Window& window, const Message& message);
  LRESULT CaptureChanged(Window& window, const Message& message);
  void TellLostButtons();
  void FreeMouse();
  bool WheelPasses(const Message& message);
  forms::Point PlaceOf(const Message& message) const;
  void LeaveFocus();

  std::shared_ptr<const void> life_ = std::make_shared<int>();
  Mouse mouse_ = Mouse::Untold;
  bool captures_ = false;
  int held_ = 0;      // the buttons whose press was told and whose release was not
  int pressing_ = 0;  // presses that are being told
  bool freeing_ = false;
  int showing_ = 0;
};

// A control whose native window is another one by a property that is set once, at design time or right behind its
// making.
class RemadePeer : public WindowPeer {
 public:
  // [variant]: the value of that property now; [make]: a peer for it.
  RemadePeer(std::function<int()> variant, std::function<std::unique_ptr<ControlPeer>()> make)
      : variant_(std::move(variant)), make_(std::move(make)), made_for_(variant_()), shown_(make_()) {}
  void Changed(forms::Property property) override;
  void TakeFocus() override { shown_->TakeFocus(); }
  void BringToFront(bool front) override { shown_->BringToFront(front); }
  HWND Handle() const override { return shown_->Handle(); }
  HWND Inside() const override { return shown_->Inside(); }
  forms::Control* ControlOf() override { return shown_->ControlOf(); }
  LRESULT OnMessage(Window& window, const Message& message) override { return window.Default(message); }

 private:
  std::function<int()> variant_;
  std::function<std::unique_ptr<ControlPeer>()> make_;
  int made_for_;
  std::unique_ptr<ControlPeer> shown_;
};

// The window on which the controls of [container] stand; null while it has none.
HWND InsideOf(forms::Container& container);

// The control that [window] or what holds it belongs to; null if there is none.
forms::Control* ControlShownBy(HWND window);

HCURSOR ShownPointer(int mouse_pointer);

}  // namespace corvane::toolkit_win32
