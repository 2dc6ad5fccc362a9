// ControlArray: controls of one kind and name that differ by their index.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "forms/form.h"

namespace corvane::forms {

// Gives [to] what [from] has of all properties that a clone takes over: all but name, index, Visible and place in the
// Tab order, and no rows of lists.
void CopyProperties(const Control& from, Control& to);

template <class Kind>
class ControlArray {
 public:
  // [designed] elements from 0 exist from the start and cannot be unloaded.
  ControlArray(Container& container, std::string name, int designed = 1)
      : container_(container), name_(std::move(name)) {
    for (int index = 0; index < designed; ++index) AddDesigned(index);
    form().AddUnloadHook(this, [this] { DropLoaded(); });
  }
  ~ControlArray() { form().DropUnloadHook(this); }
  ControlArray(const ControlArray&) = delete;
  ControlArray& operator=(const ControlArray&) = delete;

  // A further element of the design, for arrays with gaps.
  Kind& AddDesigned(int index) {
    designed_.push_back(std::make_unique<Kind>(container_, name_, index));
    return Enter(index, *designed_.back());
  }

  // Error 340 when there is no such element.
  Kind& Item(int index) const {
    const auto found = elements_.find(index);
    if (found == elements_.end()) {
      throw Error(runtime::kControlArrayElementMissing,
                  "Control array element '" + std::to_string(index) + "' doesn't exist");
    }
    return *found->second;
  }
  Kind& operator[](int index) const { return Item(index); }
  bool Has(int index) const { return elements_.count(index) != 0; }
  int Count() const { return static_cast<int>(elements_.size()); }
  int LBound() const { return elements_.empty() ? 0 : elements_.begin()->first; }
  int UBound() const { return elements_.empty() ? -1 : elements_.rbegin()->first; }

  // Makes an element: a clone of the lowest one, invisible, in its container. Error 360 when it exists.
  Kind& Load(int index) {
    if (Has(index)) throw Error(runtime::kObjectAlreadyLoaded);
    Kind* lowest = elements_.empty() ? nullptr : elements_.begin()->second;
    auto made = std::make_unique<Kind>(lowest ? lowest->ContainerOf() : container_, name_, index);
    Kind& element = *made;
    if (lowest) CopyProperties(*lowest, element);
    element.SetVisible(false);
    form().Adopt(std::move(made));
    return Enter(index, element);
  }

  // Error 340 when there is no such element, 362 for one of the design.
  void Unload(int index) {
    Kind& element = Item(index);
    if (IsDesigned(element)) throw Error(runtime::kCannotUnloadDesignTimeControl);
    elements_.erase(index);
    form().RemoveControl(element);
  }

  // [wire] sets the handlers of one element; it runs for those that exist and for each one loaded later.
  void ForEachElement(std::function<void(Kind&)> wire) {
    wire_ = std::move(wire);
    for (auto& [index, element] : elements_) wire_(*element);
  }

 private:
  Form& form() const { return container_.FormOfContainer(); }

  Kind& Enter(int index, Kind& element) {
    elements_[index] = &element;
    if (wire_) wire_(element);
    return element;
  }

  bool IsDesigned(const Kind& element) const {
    for (const auto& each : designed_) {
      if (each.get() == &element) return true;
    }
    return false;
  }

  void DropLoaded() {
    std::erase_if(elements_, [this](const auto& each) { return !IsDesigned(*each.second); });
  }

  Container& container_;
  std::string name_;
  std::vector<std::unique_ptr<Kind>> designed_;
  std::map<int, Kind*> elements_;
  std::function<void(Kind&)> wire_;
};

}  // namespace corvane::forms
