// FormWindowPeer: a form's window: its menu bar, and the surface below it on which the controls stand.
#pragma once

#include <QEventLoop>
#include <QPointer>
#include <QWidget>

#include "forms/form.h"
#include "toolkit_qt/menu.h"

namespace corvane::toolkit_qt {

class FormWindow;
class QtToolkit;

// What the border of a form takes, in twips, with a menu bar's height where it shows one.
forms::Rect FrameOfForm(const forms::Form& form);

class FormWindowPeer : public forms::FormPeer {
 public:
  FormWindowPeer(QtToolkit& toolkit, forms::Form& form);
  ~FormWindowPeer() override;

  void Changed(forms::Property property) override;
  void TakeFocus() override;
  void BringToFront(bool front) override;
  void Activate() override;

  QWidget* Window() const;
  QWidget* Surface() const { return surface_; }
  MenuBar& Menus() { return menus_; }
  // Until the form is hidden or this peer is gone.
  void RunModalLoop();

  // What the window tells.
  void WindowResized();
  void WindowMoved();
  void WindowStateChanged();
  void CloseAsked();
  bool KeyPressed(const QKeyEvent& event);
  void KeyReleased(const QKeyEvent& event);
  void Clicked();

 private:
  void ShowPlace();
  void ShowState();
  void ShowVisible();
  void LayOut();
  int ShownState() const;
  QSize ClientPixels() const;

  QtToolkit& toolkit_;
  forms::Form& form_;
  QPointer<FormWindow> window_;
  QPointer<QWidget> surface_;
  MenuBar menus_;
  QPointer<QEventLoop> modal_loop_;
  int showing_ = 0;
};

// Opens the menu of [form]'s bar whose access key this is (Alt and a letter). True when there is one.
bool OpenMenuByKey(forms::Form& form, int key_code, int shift);

}  // namespace corvane::toolkit_qt
