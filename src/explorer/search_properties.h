// The search of what designers and their controls hold at design time. Needs no window.
#pragma once

#include <functional>
#include <string>

#include "host/project.h"

namespace corvane::explorer {

// Whether components of this kind have a designer that is searched.
bool HasDesigner(host::ComponentType type);

struct PropertyHit {
  bool ofControl = false;  // else of the component itself
  std::string control;
  std::string property, value;
};

class PropertySearch {
 public:
  // [target] in any case. [goesOn] is asked before each property and ends the search by false; [yield] is called when
  // more than five properties have been read since it was called last.
  PropertySearch(const std::string& target, std::function<bool()> goesOn, std::function<void()> yield);

  // The first hit of each control; without any, the first of the component itself. What cannot be read is passed over:
  // a name that fails is "Error", a value that fails is empty.
  void Search(host::VBComponent& component, const std::function<void(const PropertyHit&)>& found);

 private:
  bool SearchControl(host::VBControl& control, PropertyHit& hit);
  bool SearchComponent(host::VBComponent& component, PropertyHit& hit);
  bool Fits(host::Property& property, PropertyHit& hit) const;
  bool GoesOn();

  std::string target_;
  std::function<bool()> goesOn_;
  std::function<void()> yield_;
  int read_ = 0;  // properties, since the latest yield
};

}  // namespace corvane::explorer
