// Properties by name as data: each kind of control has a table of how its properties are read and written.
#pragma once

#include <algorithm>
#include <iterator>
#include <type_traits>

#include "forms/control.h"

namespace corvane::forms {

template <class C>
struct PropertyEntry {
  Property property;
  Variant (*get)(const C&);
  void (*set)(C&, const Variant&);  // null: read-only
};

template <class T>
Variant ToVariant(const T& value) {
  if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, std::string> || std::is_same_v<T, PictureRef>) {
    return value;
  } else if constexpr (std::is_floating_point_v<T>) {
    return static_cast<double>(value);
  } else {
    return static_cast<long>(value);
  }
}

template <class T>
T FromVariant(const Variant& value) {
  if constexpr (std::is_same_v<T, bool>) {
    return runtime::ToBoolean(value);
  } else if constexpr (std::is_same_v<T, std::string>) {
    return runtime::ToText(value);
  } else if constexpr (std::is_same_v<T, PictureRef>) {
    if (const auto* picture = std::get_if<PictureRef>(&value)) return *picture;
    if (std::holds_alternative<std::monostate>(value)) return nullptr;
    throw Error(runtime::kTypeMismatch);
  } else if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(runtime::ToNumber(value));
  } else {
    return static_cast<T>(runtime::ToLong(value));
  }
}

template <class T>
struct SetterOf;
template <class C, class Argument>
struct SetterOf<void (C::*)(Argument)> {
  using Value = std::decay_t<Argument>;
};

template <class C, auto Getter>
Variant Read(const C& control) {
  return ToVariant<std::decay_t<decltype((control.*Getter)())>>((control.*Getter)());
}

template <class C, auto Setter>
void Write(C& control, const Variant& value) {
  (control.*Setter)(FromVariant<typename SetterOf<decltype(Setter)>::Value>(value));
}

// `Entry<Label, &Label::Caption, &Label::SetCaption>(Property::Caption)`
template <class C, auto Getter, auto Setter>
constexpr PropertyEntry<C> Entry(Property property) {
  return {property, &Read<C, Getter>, &Write<C, Setter>};
}

template <class C, auto Getter>
constexpr PropertyEntry<C> ReadOnly(Property property) {
  return {property, &Read<C, Getter>, nullptr};
}

template <class Table>
auto FindEntry(const Table& table, Property property) -> decltype(std::begin(table)) {
  const auto found =
      std::find_if(std::begin(table), std::end(table), [&](const auto& entry) { return entry.property == property; });
  return found == std::end(table) ? nullptr : &*found;
}

// Reads through [table], and what is not in it as [Base] does.
template <class Base, class C, size_t N>
Variant GetBy(const PropertyEntry<C> (&table)[N], const C& control, Property property) {
  const auto* entry = FindEntry(table, property);
  return entry ? entry->get(control) : control.Base::Get(property);
}

template <class Base, class C, size_t N>
void SetBy(const PropertyEntry<C> (&table)[N], C& control, Property property, const Variant& value) {
  const auto* entry = FindEntry(table, property);
  if (!entry) return control.Base::Set(property, value);
  if (!entry->set) throw Error(runtime::kPropertyReadOnly);
  entry->set(control, value);
}

}  // namespace corvane::forms
