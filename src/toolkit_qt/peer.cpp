#include "toolkit_qt/peer.h"

#include <iterator>

#include "forms/form.h"
#include "toolkit_qt/colors.h"
#include "toolkit_qt/fonts.h"
#include "toolkit_qt/form.h"
#include "toolkit_qt/texts.h"
#include "toolkit_qt/toolkit.h"
#include "toolkit_qt/units.h"

namespace corvane::toolkit_qt {
namespace {

constexpr char kControlOfWidget[] = "corvaneControl";

// By number of the mouse pointer.
constexpr Qt::CursorShape kPointers[] = {
    Qt::ArrowCursor,     Qt::ArrowCursor,   Qt::CrossCursor,     Qt::IBeamCursor,
    Qt::ArrowCursor,     Qt::SizeAllCursor, Qt::SizeBDiagCursor, Qt::SizeVerCursor,
    Qt::SizeFDiagCursor, Qt::SizeHorCursor, Qt::UpArrowCursor,   Qt::WaitCursor,
    Qt::ForbiddenCursor, Qt::BusyCursor,    Qt::WhatsThisCursor, Qt::SizeAllCursor,
};

}  // namespace

Qt::CursorShape ShownPointer(int mouse_pointer) {
  const bool known = mouse_pointer >= 0 && mouse_pointer < static_cast<int>(std::size(kPointers));
  return known ? kPointers[mouse_pointer] : Qt::ArrowCursor;
}

QWidget* InsideOf(forms::Container& container) {
  if (forms::Control* control = container.AsControl()) {
    auto* peer = dynamic_cast<WidgetPeer*>(control->Peer());
    return peer ? peer->Inside() : nullptr;
  }
  auto* peer = dynamic_cast<FormWindowPeer*>(container.FormOfContainer().Peer());
  return peer ? peer->Surface() : nullptr;
}

forms::Control* ControlShownBy(QWidget* widget) {
  for (; widget; widget = widget->parentWidget()) {
    const QVariant control = widget->property(kControlOfWidget);
    if (control.isValid()) return reinterpret_cast<forms::Control*>(control.value<quintptr>());
  }
  return nullptr;
}

ControlPeer::ControlPeer(QtToolkit& toolkit, forms::Control& control)
    : toolkit_(toolkit), control_(control), input_(std::make_unique<Input>(toolkit, control)) {}

ControlPeer::~ControlPeer() {
  input_.reset();
  if (!widget_) return;
  const QtToolkit::ByCode by_code(toolkit_);
  widget_->setProperty(kControlOfWidget, {});
  widget_->hide();
  widget_->deleteLater();
}

void ControlPeer::SetWidget(QWidget* widget, Input::Mouse mouse) {
  widget_ = widget;
  widget->setProperty(kControlOfWidget, QVariant::fromValue(reinterpret_cast<quintptr>(&control_)));
  widget->setFocusPolicy(control_.CanTakeFocus() ? Qt::ClickFocus : Qt::NoFocus);
  input_->Watch(*widget, *widget, mouse);
}

void ControlPeer::Changed(forms::Property property) {
  if (!widget_) return;
  const QtToolkit::ByCode by_code(toolkit_);
  ++showing_;
  using forms::Property;
  const auto is = [&](auto... any) { return property == Property::All || ((property == any) || ...); };
  if (is(Property::Font)) ShowFont();
  if (is(Property::BackColor, Property::ForeColor)) ShowColors();
  if (is(Property::Left, Property::Top, Property::Width, Property::Height)) ShowPlace();
  if (is(Property::ToolTipText)) widget_->setToolTip(ShownText(control_.ToolTipText()));
  if (is(Property::MousePointer)) {
    control_.MousePointer() ? widget_->setCursor(ShownPointer(control_.MousePointer())) : widget_->unsetCursor();
  }
  ShowOwn(property);
  if (is(Property::Enabled)) widget_->setEnabled(control_.Enabled());
  if (is(Property::Visible)) widget_->setVisible(control_.Visible());
  --showing_;
}

QRect ControlPeer::ShownPlace() const {
  return PixelsOf(control_.Place());
}

void ControlPeer::ShowPlace() {
  widget_->setGeometry(ShownPlace());
}

void ControlPeer::ShowFont() {
  widget_->setFont(ShownFont(control_.Font()));
}

void ControlPeer::ShowColors() {
  widget_->setPalette(PaletteWith(control_.BackColor(), control_.ForeColor()));
}

void ControlPeer::TakeFocus() {
  const QtToolkit::ByCode by_code(toolkit_);
  QWidget* target = FocusTarget();
  if (!target) return;
  target->window()->setAttribute(Qt::WA_KeyboardFocusChange);  // what has the focus shows it
  target->setFocus(Qt::OtherFocusReason);
}

void ControlPeer::BringToFront(bool front) {
  if (!widget_) return;
  front ? widget_->raise() : widget_->lower();
}

void ControlPeer::Report(const std::function<void()>& act) {
  if (showing_ == 0) toolkit_.Guard(act);
}

void ControlPeer::ReportThenShow(forms::Property property, const std::function<void()>& act) {
  const QPointer<Input> self(input_.get());
  Report(act);
  if (self) Changed(property);
}

void RemadePeer::Changed(forms::Property property) {
  if (made_for_ == variant_()) return shown_->Changed(property);
  made_for_ = variant_();
  const QWidget* before = Widget();
  const QWidget* focus = before ? before->window()->focusWidget() : nullptr;
  const bool had_focus = focus && (focus == before || before->isAncestorOf(focus));
  shown_ = make_();
  shown_->Changed(forms::Property::All);
  if (had_focus) shown_->TakeFocus();
}

}  // namespace corvane::toolkit_qt
