#include "explorer/search_properties.h"

#include "explorer/project_access.h"
#include "host/designer.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;
using host::Ref;

namespace {

constexpr char kNameProperty[] = "Name", kListProperty[] = "List", kUnreadable[] = "Error";
constexpr long kLastListItem = 20;
constexpr int kPropertiesPerYield = 5;

// The items of a collection up to the first for which [action] is false; one that cannot be had is passed over.
template <class C, class Action>
void ForEach(const Ref<C>& collection, Action action) {
  long count = 0;
  PassOverErrors([&] { count = Object(collection).Count(); });
  for (long position = 1; position <= count; ++position) {
    decltype(collection->Item(host::Index(position))) item;
    PassOverErrors([&] { item = collection->Item(host::Index(position)); });
    if (item && !action(*item)) return;
  }
}

std::string NameOf(host::Property& property) {
  std::string name = kUnreadable;
  PassOverErrors([&] { name = property.Name(); });
  return name;
}

// The items up to the first empty one, behind one another.
std::string ItemsOf(host::Property& property) {
  std::string items;
  PassOverErrors([&] {
    if (property.NumIndices() != 1) return;
    for (long index = 0; index <= kLastListItem; ++index) {
      const std::string item = ToText(property.IndexedValue(index));
      if (item.empty()) return;
      items += (items.empty() ? "" : ",") + item;
    }
  });
  return items;
}

std::string ValueOf(host::Property& property, const std::string& name) {
  if (name == kListProperty) return ItemsOf(property);
  std::string value;
  PassOverErrors([&] { value = ToText(property.Value()); });
  return value;
}

}  // namespace

bool HasDesigner(host::ComponentType type) {
  return type != host::ComponentType::StdModule && type != host::ComponentType::ClassModule;
}

PropertySearch::PropertySearch(const std::string& target, std::function<bool()> goesOn, std::function<void()> yield)
    : target_(UCase(target)), goesOn_(std::move(goesOn)), yield_(std::move(yield)) {}

void PropertySearch::Search(host::VBComponent& component, const std::function<void(const PropertyHit&)>& found) {
  bool any = false;
  PropertyHit hit;
  Ref<host::VBControls> controls;
  PassOverErrors([&] { controls = Object(component.Designer()).VBControls(); });
  ForEach(controls, [&](host::VBControl& control) {
    if (SearchControl(control, hit)) {
      any = hit.ofControl = true;
      found(hit);
    }
    return goesOn_();
  });
  if (!any && goesOn_() && SearchComponent(component, hit)) found(hit);
}

// What is found before the control's name was read goes under the name of the one before it.
bool PropertySearch::SearchControl(host::VBControl& control, PropertyHit& hit) {
  bool fits = false;
  Ref<host::Properties> properties;
  PassOverErrors([&] { properties = control.Properties(); });
  ForEach(properties, [&](host::Property& property) {
    if (!GoesOn()) return false;
    hit.property = NameOf(property);
    if (hit.property == kNameProperty)
      PassOverErrors([&] { hit.control = ToText(property.Value()); });
    else
      fits = Fits(property, hit);
    return !fits;
  });
  return fits;
}

bool PropertySearch::SearchComponent(host::VBComponent& component, PropertyHit& hit) {
  hit.ofControl = false;
  hit.control.clear();
  bool fits = false;
  Ref<host::Properties> properties;
  PassOverErrors([&] { properties = component.Properties(); });
  ForEach(properties, [&](host::Property& property) {
    if (!GoesOn()) return false;
    hit.property = NameOf(property);
    fits = !hit.property.empty() && Fits(property, hit);
    return !fits && !hit.property.empty();
  });
  return fits;
}

bool PropertySearch::Fits(host::Property& property, PropertyHit& hit) const {
  hit.value = ValueOf(property, hit.property);
  return Len(hit.value) > 1 && Holds(UCase(hit.value), target_);
}

bool PropertySearch::GoesOn() {
  if (++read_ > kPropertiesPerYield) {
    read_ = 0;
    yield_();
  }
  return goesOn_();
}

}  // namespace corvane::explorer
