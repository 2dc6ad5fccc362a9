#include "forms/scroll_bar.h"

#include <algorithm>
#include <utility>

#include "forms/property_table.h"

namespace corvane::forms {

namespace {

constexpr PropertyEntry<ScrollBar> kProperties[] = {
    Entry<ScrollBar, &ScrollBar::Min, &ScrollBar::SetMin>(Property::Min),
    Entry<ScrollBar, &ScrollBar::Max, &ScrollBar::SetMax>(Property::Max),
    Entry<ScrollBar, &ScrollBar::Value, &ScrollBar::SetValue>(Property::Value),
    Entry<ScrollBar, &ScrollBar::SmallChange, &ScrollBar::SetSmallChange>(Property::SmallChange),
    Entry<ScrollBar, &ScrollBar::LargeChange, &ScrollBar::SetLargeChange>(Property::LargeChange),
};

}  // namespace

HScrollBar::HScrollBar(Container& container, std::string name, int index)
    : ScrollBar(container, std::move(name), index) {
  place_ = {0, 0, 1215, 255};
}

VScrollBar::VScrollBar(Container& container, std::string name, int index)
    : ScrollBar(container, std::move(name), index) {
  place_ = {0, 0, 255, 1215};
}

void ScrollBar::SetMin(long value) {
  if (min_ == value) return;
  min_ = value;
  Changed(Property::Min);
  KeepInRange();
}

void ScrollBar::SetMax(long value) {
  if (max_ == value) return;
  max_ = value;
  Changed(Property::Max);
  KeepInRange();
}

// Min may be above Max: the bar then runs the other way.
void ScrollBar::KeepInRange() {
  SetValue(std::clamp(value_, std::min(min_, max_), std::max(min_, max_)));
}

void ScrollBar::SetValue(long value) {
  if (value < std::min(min_, max_) || value > std::max(min_, max_)) throw Error(runtime::kInvalidPropertyValue);
  if (value_ == value) return;
  value_ = value;
  Changed(Property::Value);
  Change();
}

void ScrollBar::SetSmallChange(long value) {
  if (value < 1) throw Error(runtime::kInvalidPropertyValue);
  small_change_ = value;
  Changed(Property::SmallChange);
}

void ScrollBar::SetLargeChange(long value) {
  if (value < 1) throw Error(runtime::kInvalidPropertyValue);
  large_change_ = value;
  Changed(Property::LargeChange);
}

void ScrollBar::UserScroll(long value, bool dragging) {
  if (!AcceptsInput()) return;
  value = std::clamp(value, std::min(min_, max_), std::max(min_, max_));
  const bool moved = value_ != value;
  if (moved) {
    value_ = value;
    Changed(Property::Value);
  }
  if (dragging) {
    dragged_ = dragged_ || moved;
    if (moved) Scroll();
  } else if (std::exchange(dragged_, false) || moved) {
    Change();
  }
}

Variant ScrollBar::Get(Property property) const {
  return GetBy<Control>(kProperties, *this, property);
}
void ScrollBar::Set(Property property, const Variant& value) {
  SetBy<Control>(kProperties, *this, property, value);
}

}  // namespace corvane::forms
