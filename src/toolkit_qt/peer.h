// ControlPeer: what the widgets of all control kinds have in common.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>

#include "forms/control.h"
#include "toolkit_qt/input.h"

namespace corvane::toolkit_qt {

class QtToolkit;

class WidgetPeer : public forms::Peer {
 public:
  virtual QWidget* Widget() const = 0;
  // Where the controls stand that it contains.
  virtual QWidget* Inside() const { return Widget(); }
};

class ControlPeer : public WidgetPeer {
 public:
  ControlPeer(QtToolkit& toolkit, forms::Control& control);
  // The widgets may be in the middle of an event: they go with the next turn of the loop.
  ~ControlPeer() override;

  void Changed(forms::Property property) override;
  void TakeFocus() override;
  void BringToFront(bool front) override;

  QWidget* Widget() const override { return widget_; }

 protected:
  // To be called by the constructor of a kind.
  void SetWidget(QWidget* widget, Input::Mouse mouse);
  // Shows what the kind alone has. Property::All: all of it.
  virtual void ShowOwn(forms::Property) {}
  virtual QRect ShownPlace() const;
  virtual void ShowPlace();
  virtual void ShowFont();
  virtual void ShowColors();
  virtual QWidget* FocusTarget() const { return widget_; }

  // Reports an act of the user; nothing while the logic's own state is being shown.
  void Report(const std::function<void()>& act);
  // As Report, then shows the state again that the act has left, where this peer still lives.
  void ReportThenShow(forms::Property property, const std::function<void()>& act);

  QtToolkit& toolkit_;
  forms::Control& control_;
  std::unique_ptr<Input> input_;  // gone as soon as the peer is, in the middle of an act too

 private:
  QPointer<QWidget> widget_;
  int showing_ = 0;
};

// A control whose widget is another one by a property that is set once, at design time or right behind its making.
class RemadePeer : public WidgetPeer {
 public:
  // [variant]: the value of that property now; [make]: a peer for it.
  RemadePeer(std::function<int()> variant, std::function<std::unique_ptr<ControlPeer>()> make)
      : variant_(std::move(variant)), make_(std::move(make)), made_for_(variant_()), shown_(make_()) {}
  void Changed(forms::Property property) override;
  void TakeFocus() override { shown_->TakeFocus(); }
  void BringToFront(bool front) override { shown_->BringToFront(front); }
  QWidget* Widget() const override { return shown_->Widget(); }

 private:
  std::function<int()> variant_;
  std::function<std::unique_ptr<ControlPeer>()> make_;
  int made_for_;
  std::unique_ptr<ControlPeer> shown_;
};

// The widget on which the controls of [container] stand; null while it has none.
QWidget* InsideOf(forms::Container& container);

// The control that [widget] or what holds it belongs to; null if there is none.
forms::Control* ControlShownBy(QWidget* widget);

Qt::CursorShape ShownPointer(int mouse_pointer);

}  // namespace corvane::toolkit_qt
