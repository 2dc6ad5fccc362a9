// HScrollBar and VScrollBar.
#pragma once

#include "forms/control.h"

namespace corvane::forms {

class ScrollBar : public Control {
 public:
  using Control::Control;
  bool CanTakeFocus() const override { return true; }
  long Min() const { return min_; }
  long Max() const { return max_; }
  long Value() const { return value_; }
  long SmallChange() const { return small_change_; }
  long LargeChange() const { return large_change_; }
  // A value that the new range leaves outside moves to its border, with Change.
  void SetMin(long value);
  void SetMax(long value);
  void SetValue(long value);  // Change when it differs; Error 380 outside the range
  void SetSmallChange(long value);
  void SetLargeChange(long value);
  Event<> Change, Scroll;
  void UserScroll(long value, bool dragging);  // Scroll while dragging, Change when it is let go
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 protected:
  bool ClicksOnRelease() const override { return false; }

 private:
  void KeepInRange();
  long min_ = 0, max_ = 32767, value_ = 0, small_change_ = 1, large_change_ = 1;
  bool dragged_ = false;
};

class HScrollBar : public ScrollBar {
 public:
  HScrollBar(Container& container, std::string name, int index = -1);
  ControlKind Kind() const override { return ControlKind::HScrollBar; }
};

class VScrollBar : public ScrollBar {
 public:
  VScrollBar(Container& container, std::string name, int index = -1);
  ControlKind Kind() const override { return ControlKind::VScrollBar; }
};

}  // namespace corvane::forms
