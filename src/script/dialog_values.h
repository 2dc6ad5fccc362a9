// The values of a dialog's controls, as the language reads them: "<(" page "|", then for each control its kind of four
// letters, ".", its name, "=", its value, valueEnd.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane::script {

struct ControlValue {
  std::string text;
  std::string index;  // of a list: the place of what is selected
  std::string item;   // and its text
};

// The first control of [name] (upper case) in [values]; nothing if there is none of a kind that can be read.
std::optional<ControlValue> ReadControl(std::string_view values, std::string_view name);

}  // namespace corvane::script
