// A window's layout as text, for goldens, and checks of what only a reader of pixels would see otherwise.
#pragma once

#include <string>
#include <vector>

#include "forms/form.h"

namespace corvane::forms {

// One line per control, indented below its container, in the order of Controls(), then the menus:
//   Form frmX 200 200 12300 8400 "Caption"
//   Label Label1 120 60 1500 195 "Components" tab 4
//     OptionButton opt (2) 120 300 900 255 "All" hidden disabled tab 5
//   Menu mnuFile "&File"
// kind, name, (index), left, top, width, height in twips, caption or text in quotes, hidden and disabled where it is
// so, place in the Tab order for kinds that have one. Toolbars list their buttons.
std::string LayoutText(const Form& form);

// Visible controls of one container that cover each other, as "cmdOK and cmdCancel overlap in Frame1". Lines, shapes
// and what is never seen do not count; neither do pairs where one name is in [may_overlap].
std::vector<std::string> FindOverlaps(const Form& form, const std::vector<std::string>& may_overlap = {});

// What is cut off, as one sentence each: captions that do not fit their control by the toolkit's metrics, and visible
// controls that stick out of their container.
std::vector<std::string> FindClipped(const Form& form);

}  // namespace corvane::forms
