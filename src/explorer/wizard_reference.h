// WizardReference: which script a favourite wizard or a row of the wizard list stands for.
#pragma once

#include <string>
#include <string_view>

namespace corvane::explorer {

struct WizardReference {
  std::string name, entry;  // both empty for a text that holds no reference
};

// The key of a favourite wizard: "title{NAME}!entry".
WizardReference ReferenceOfKey(std::string_view key);
// A row of the wizard list: a caption, blanks, "{NAME}!group", or character 1 and a file's name in place of the braces.
WizardReference ReferenceOfRow(std::string_view row);

}  // namespace corvane::explorer
