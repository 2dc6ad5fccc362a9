#include "forms/timer.h"

#include <QTimer>

#include "toolkit_qt/peers.h"
#include "toolkit_qt/toolkit.h"

namespace corvane::toolkit_qt {
namespace {

class TimerPeer : public forms::Peer {
 public:
  TimerPeer(QtToolkit& toolkit, forms::Timer& timer) : timer_(timer), clock_(new QTimer) {
    QObject::connect(clock_, &QTimer::timeout, clock_,
                     [&toolkit, &timer] { toolkit.Guard([&timer] { timer.UserTick(); }); });
  }
  // It may end inside its own tick.
  ~TimerPeer() override {
    clock_->stop();
    clock_->disconnect();
    clock_->deleteLater();
  }
  void Changed(forms::Property property) override {
    using forms::Property;
    if (property != Property::All && property != Property::Interval && property != Property::Enabled) return;
    timer_.IsRunning() ? clock_->start(static_cast<int>(timer_.Interval())) : clock_->stop();
  }

 private:
  forms::Timer& timer_;
  QTimer* clock_;
};

}  // namespace

NewPeer NewTimerPeer(QtToolkit& toolkit, forms::Timer& timer) {
  return std::make_unique<TimerPeer>(toolkit, timer);
}

}  // namespace corvane::toolkit_qt
