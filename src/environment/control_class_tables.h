// The tables from which the control classes are made.
#pragma once

#include <span>
#include <vector>

#include "environment/control_classes.h"

namespace corvane::environment {

using PropertySet = std::span<const PropertyRow>;

struct ClassTable {
  std::string_view prog_id, base_name, default_event;
  bool is_container;
  long width, height;
  std::vector<PropertySet> sets;  // later ones win
  PropertySet unlisted;
};

const std::vector<ClassTable>& ClassTables();
PropertySet ExtenderTable();

}  // namespace corvane::environment
