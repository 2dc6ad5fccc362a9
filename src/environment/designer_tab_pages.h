// Controls on the pages of a tabbed dialog: the dialog's own block lists them as Tab(0).Control(1) = "Name".
#pragma once

#include <string>

#include "environment/designer_part.h"

namespace corvane::environment {

void RenameOnTabPage(DesignerPart& part, DesignerBlock& control, const std::string& new_name);
// The later controls of the page move up, as the dialog writes them itself.
void TakeOffTabPage(DesignerPart& part, DesignerBlock& control);

}  // namespace corvane::environment
