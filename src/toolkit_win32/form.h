// FormWindowPeer: a form's window with its menu bar. Controls stand on its client area.
#pragma once

#include <memory>

#include "forms/form.h"
#include "toolkit_win32/menu.h"
#include "toolkit_win32/modal.h"
#include "toolkit_win32/peer.h"

namespace corvane::toolkit_win32 {

class KeyHook;
class Win32Toolkit;

// What the border of a form takes, in twips, with a menu bar's height where it shows one.
forms::Rect FrameOfForm(const Win32Toolkit& toolkit, const forms::Form& form);

class FormWindowPeer : public forms::FormPeer, public MessageSink {
 public:
  FormWindowPeer(Win32Toolkit& toolkit, forms::Form& form);
  ~FormWindowPeer() override;

  void Changed(forms::Property property) override;
  void TakeFocus() override;
  void BringToFront(bool front) override;
  void Activate() override;

  HWND Handle() const { return window_.Handle(); }
  MenuBar& Menus() { return menus_; }
  // Until the form is hidden or this peer is gone.
  void RunModalLoop();

 private:
  LRESULT OnMessage(Window& window, const Message& message) override;
  bool OnKey(Window& window, int key_code, int shift) override;
  void OnGone(Window& window) override;
  bool CharacterTyped(wchar_t character);
  void Activated(bool active);
  void WindowResized(WPARAM how);
  void WindowMoved();
  void TellControls(const Message& message);
  void PutWhereFocusBelongs();
  void ShowIcon();
  void ShowPlace();
  void ShowState();
  void ShowVisible();
  void ShowOnScreen();
  void BelongTo(HWND owner);
  void LetOwnedFormsStay();
  int ShownState() const;
  bool ShowPointer() const;

  Win32Toolkit& toolkit_;
  forms::Form& form_;
  Window window_;
  MenuBar menus_;
  std::shared_ptr<ModalRun> modal_;
  std::shared_ptr<const void> life_ = std::make_shared<int>();
  std::shared_ptr<KeyHook> keys_;  // while there are windows of ours
  int showing_ = 0;
  bool placing_ = false;
};

}  // namespace corvane::toolkit_win32
