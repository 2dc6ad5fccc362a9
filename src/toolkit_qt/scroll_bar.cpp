#include "forms/scroll_bar.h"

#include <QSignalBlocker>
#include <algorithm>

#include "toolkit_qt/peer.h"
#include "toolkit_qt/peers.h"
#include "toolkit_qt/scroll_bar_view.h"

namespace corvane::toolkit_qt {
namespace {

class ScrollBarPeer : public ControlPeer {
 public:
  ScrollBarPeer(QtToolkit& toolkit, forms::ScrollBar& bar) : ControlPeer(toolkit, bar), bar_(bar) {
    const auto way = bar.Kind() == forms::ControlKind::HScrollBar ? Qt::Horizontal : Qt::Vertical;
    shown_ = new ScrollBarView(way, InsideOf(bar.ContainerOf()));
    shown_->setContextMenuPolicy(Qt::NoContextMenu);
    SetWidget(shown_, Input::Mouse::Untold);
    QObject::connect(shown_, &QScrollBar::valueChanged, input_.get(), [this](int value) {
      ReportThenShow(forms::Property::Value, [&] { bar_.UserScroll(value, shown_->isSliderDown()); });
    });
    QObject::connect(shown_, &QScrollBar::sliderReleased, input_.get(), [this] {
      ReportThenShow(forms::Property::Value, [&] { bar_.UserScroll(shown_->value(), false); });
    });
  }

 protected:
  // A range may run backwards: then its least value is at the far end.
  void ShowOwn(forms::Property) override {
    const QSignalBlocker quiet(shown_);
    shown_->setInvertedAppearance(bar_.Min() > bar_.Max());
    shown_->setInvertedControls(bar_.Min() > bar_.Max());
    shown_->setRange(static_cast<int>(std::min(bar_.Min(), bar_.Max())),
                     static_cast<int>(std::max(bar_.Min(), bar_.Max())));
    shown_->setSingleStep(static_cast<int>(bar_.SmallChange()));
    shown_->setPageStep(static_cast<int>(bar_.LargeChange()));
    if (!shown_->isSliderDown()) shown_->setValue(static_cast<int>(bar_.Value()));
  }
  void ShowColors() override {}

 private:
  forms::ScrollBar& bar_;
  QScrollBar* shown_;
};

}  // namespace

NewPeer NewScrollBarPeer(QtToolkit& toolkit, forms::ScrollBar& bar) {
  return std::make_unique<ScrollBarPeer>(toolkit, bar);
}

}  // namespace corvane::toolkit_qt
