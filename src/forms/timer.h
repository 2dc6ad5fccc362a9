// Timer: raises its event each Interval milliseconds while Enabled.
#pragma once

#include "forms/control.h"

namespace corvane::forms {

class Timer : public Control {
 public:
  Timer(Container& container, std::string name, int index = -1);
  ControlKind Kind() const override { return ControlKind::Timer; }
  long Interval() const { return interval_; }
  void SetInterval(long value);  // 0 stops it; Error 380 outside 0 to 65535
  bool IsRunning() const { return Enabled() && interval_ > 0; }
  Event<> Tick;
  void UserTick() {
    if (IsRunning()) Tick();
  }
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 private:
  long interval_ = 0;
};

}  // namespace corvane::forms
