#include "script/arrays.h"

#include <cmath>

#include "runtime/error.h"
#include "script/numbers.h"

namespace corvane::script {

namespace {

bool IsSlot(long slot) {
  return slot >= 1 && slot <= Arrays::kSlots;
}

}  // namespace

void Arrays::Clear() {
  arrayCount = 0;
  for (auto& elements : slots_) std::vector<Cell>().swap(elements);
}

std::string Arrays::ArrayAccess(long slot, std::string_view what) {
  if (!IsSlot(slot)) {
    errors_.ReportError("Index is out of bounds.");
    return {};
  }
  std::vector<Cell>& elements = slots_[static_cast<size_t>(slot - 1)];
  if (what == "UBOUND") return elements.empty() ? "-1" : std::to_string(elements.size());
  if (what == "ERASE") {
    std::vector<Cell>().swap(elements);
    return {};
  }
  return Element(elements, what);
}

void Arrays::AddTo(MemoryUse& use) const {
  for (const auto& elements : slots_) use.Add(elements);
}

std::string Arrays::Element(const std::vector<Cell>& elements, std::string_view index) {
  const auto number = NumberOf(index);
  if (!number || *number < 1) {
    errors_.ReportError("Array's Index Error.");
    return {};
  }
  const double whole = std::nearbyint(*number);
  if (whole > static_cast<double>(elements.size())) return {};
  return TextOf(elements[static_cast<size_t>(whole) - 1]);
}

void Arrays::ArrayStore(long slot, double index) {
  if (!IsSlot(slot)) return errors_.ReportError("You can use only 20 arrays.");
  if (index > kHighest) return errors_.ReportError("You can use only 1000000 elements of an array.");
  std::vector<Cell>& elements = slots_[static_cast<size_t>(slot - 1)];
  const auto place = static_cast<size_t>(std::nearbyint(index));
  if (place == 0) throw runtime::Error(runtime::kSubscriptOutOfRange);
  if (elements.size() < place) elements.resize(place);
  elements[place - 1] = state_.lastValue;
}

}  // namespace corvane::script
