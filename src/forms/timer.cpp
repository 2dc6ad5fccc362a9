#include "forms/timer.h"

#include "forms/property_table.h"

namespace corvane::forms {

namespace {

constexpr PropertyEntry<Timer> kProperties[] = {
    Entry<Timer, &Timer::Interval, &Timer::SetInterval>(Property::Interval),
};

}  // namespace

Timer::Timer(Container& container, std::string name, int index) : Control(container, std::move(name), index) {
  place_ = {0, 0, 0, 0};
}

void Timer::SetInterval(long value) {
  if (value < 0 || value > 65535) throw Error(runtime::kInvalidPropertyValue);
  if (interval_ == value) return;
  interval_ = value;
  Changed(Property::Interval);
}

Variant Timer::Get(Property property) const {
  return GetBy<Control>(kProperties, *this, property);
}
void Timer::Set(Property property, const Variant& value) {
  SetBy<Control>(kProperties, *this, property, value);
}

}  // namespace corvane::forms
