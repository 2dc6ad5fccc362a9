// QtToolkit: windows on Qt 6 Widgets, in the Fusion style. One for a program, made behind its QApplication.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <string>

#include "forms/form.h"
#include "forms/toolkit.h"
#include "toolkit_qt/canvas.h"

namespace corvane::toolkit_qt {

class FormWindowPeer;

class QtToolkit : public forms::Toolkit {
 public:
  QtToolkit();

  // The window in front of which forms stay; null for none. For forms that are loaded from now on.
  void SetParentWindow(QWidget* window) { parent_window_ = window; }
  QWidget* ParentWindow() const { return parent_window_; }
  // The widgets of what is loaded; null for others. For tests and for a program with windows of its own.
  QWidget* WindowOf(const forms::Form& form) const;
  QWidget* WidgetOf(const forms::Control& control) const;

  std::unique_ptr<forms::FormPeer> NewFormPeer(forms::Form& form) override;
  std::unique_ptr<forms::Peer> NewPeer(forms::Control& control) override;
  forms::TextMetrics& Metrics() override { return metrics_; }
  forms::Rect FrameOf(const forms::Form& form) override;
  void RunModal(forms::Form& form) override;
  void DoEvents() override;
  void PopupMenu(forms::Form& form, forms::Menu& menu, forms::Twips x, forms::Twips y) override;
  forms::Control* ControlUnderPointer() override;

  // While one lives, focus and size change because the logic said so, and are not reported as acts.
  class ByCode {
   public:
    explicit ByCode(QtToolkit& toolkit) : toolkit_(toolkit) { ++toolkit_.by_code_; }
    ~ByCode() { --toolkit_.by_code_; }
    ByCode(const ByCode&) = delete;
    ByCode& operator=(const ByCode&) = delete;

   private:
    QtToolkit& toolkit_;
  };
  bool IsByCode() const { return by_code_ > 0; }

  // Device pixels to the logical pixel for [widget]'s drawings: its screen's, or the one set for a picture of a window.
  double ScaleFor(const QWidget& widget) const;
  void SetScaleForPicture(double scale) { picture_scale_ = scale; }

 private:
  QtTextMetrics metrics_;
  QPointer<QWidget> parent_window_;
  int by_code_ = 0;
  double picture_scale_ = 0;
  QObject context_;  // ends connections with the toolkit
};

}  // namespace corvane::toolkit_qt
