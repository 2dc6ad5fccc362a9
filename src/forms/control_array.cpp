#include "forms/control_array.h"

#include <algorithm>
#include <initializer_list>

namespace corvane::forms {

namespace {

// What belongs to one element alone, what the user selected, and what would be set twice.
constexpr std::initializer_list<Property> kNotCloned = {
    Property::Container, Property::Index,    Property::Name,     Property::Visible, Property::TabIndex,
    Property::ListIndex, Property::TopIndex, Property::SelStart, Property::SelText, Property::SelLength,
};

// An option keeps its group's choice until the clone is asked to take it; a button has no value to keep.
bool IsCloned(const Control& control, Property property) {
  if (control.Kind() == ControlKind::CommandButton && property == Property::Value) return false;
  return std::find(kNotCloned.begin(), kNotCloned.end(), property) == kNotCloned.end();
}

}  // namespace

void CopyProperties(const Control& from, Control& to) {
  for (int number = static_cast<int>(Property::All) + 1; number <= static_cast<int>(Property::ZOrder); ++number) {
    const auto property = static_cast<Property>(number);
    if (!IsCloned(from, property)) continue;
    runtime::PassOverErrors([&] { to.Set(property, from.Get(property)); });
  }
}

}  // namespace corvane::forms
