#include "environment/control_classes.h"

#include <algorithm>
#include <charconv>

#include "environment/control_class_tables.h"
#include "environment/lookup.h"

namespace corvane::environment {

namespace {

bool ComesBefore(const PropertyRow& left, const PropertyRow& right) {
  return runtime::UCase(left.name) < runtime::UCase(right.name);
}

// The rows of all sets; a row of a later set takes the place of one of the same name.
std::vector<PropertyRow> Union(const std::vector<PropertySet>& sets) {
  std::vector<PropertyRow> rows;
  for (const PropertySet& set : sets) {
    for (const PropertyRow& row : set) {
      const auto same = std::find_if(rows.begin(), rows.end(), [&](const auto& r) { return r.name == row.name; });
      if (same == rows.end())
        rows.push_back(row);
      else
        *same = row;
    }
  }
  std::sort(rows.begin(), rows.end(), ComesBefore);
  return rows;
}

std::vector<ControlClass> MakeClasses() {
  std::vector<ControlClass> classes;
  for (const ClassTable& table : ClassTables()) {
    ControlClass made{table.prog_id, table.base_name, table.default_event, table.is_container,
                      table.width,   table.height,    Union(table.sets),   {}};
    made.unlisted.assign(table.unlisted.begin(), table.unlisted.end());
    classes.push_back(std::move(made));
  }
  return classes;
}

}  // namespace

const std::vector<ControlClass>& ControlClasses() {
  static const std::vector<ControlClass> classes = MakeClasses();
  return classes;
}

const PropertyRow* ControlClass::Find(std::string_view name) const {
  for (const PropertyRow& row : properties)
    if (SameName(row.name, name)) return &row;
  return nullptr;
}

const ControlClass* FindControlClass(std::string_view prog_id) {
  const bool has_library = prog_id.find('.') != std::string_view::npos;
  for (const ControlClass& known : ControlClasses())
    if (SameName(has_library ? known.prog_id : known.ClassName(), prog_id)) return &known;
  return nullptr;
}

const std::vector<PropertyRow>& ExtenderProperties() {
  static const std::vector<PropertyRow> rows = Union({ExtenderTable()});
  return rows;
}

const PropertyRow* FindExtenderProperty(std::string_view name) {
  for (const PropertyRow& row : ExtenderProperties())
    if (SameName(row.name, name)) return &row;
  return nullptr;
}

std::string_view ChoiceText(std::string_view choices, long value) {
  long number = -1;
  while (!choices.empty()) {
    const size_t end = std::min(choices.find('|'), choices.size());
    std::string_view text = choices.substr(0, end);
    choices.remove_prefix(std::min(end + 1, choices.size()));
    ++number;
    if (const size_t sign = text.find('='); sign != std::string_view::npos) {
      std::from_chars(text.data(), text.data() + sign, number);
      text.remove_prefix(sign + 1);
    }
    if (number == value) return text;
  }
  return {};
}

}  // namespace corvane::environment
