#include "forms/timer.h"

#include "toolkit_win32/peers.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

class TimerPeer : public forms::Peer {
 public:
  TimerPeer(Win32Toolkit& toolkit, forms::Timer& timer) : toolkit_(toolkit), timer_(timer) {}
  ~TimerPeer() override { Stop(); }
  void Changed(forms::Property property) override {
    using forms::Property;
    if (property != Property::All && property != Property::Interval && property != Property::Enabled) return;
    Stop();
    if (!timer_.IsRunning()) return;
    const auto tick = [this] { toolkit_.Guard([this] { timer_.UserTick(); }); };
    clock_ = toolkit_.StartClock(static_cast<unsigned>(timer_.Interval()), tick);
  }

 private:
  void Stop() {
    if (clock_) toolkit_.StopClock(clock_);
    clock_ = 0;
  }

  Win32Toolkit& toolkit_;
  forms::Timer& timer_;
  UINT_PTR clock_ = 0;
};

}  // namespace

NewPeer NewTimerPeer(Win32Toolkit& toolkit, forms::Timer& timer) {
  return std::make_unique<TimerPeer>(toolkit, timer);
}

}  // namespace corvane::toolkit_win32
