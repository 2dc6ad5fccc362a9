// Controls on the pages of a tabbed dialog: the dialog's own block lists them as Tab(0).Control(1) = "Name".
#pragma once

#include <string>

#include "environment/designer_part.h"

namespace corvane::environment {

// What a page calls a control: its name, with the index of an array's element.
std::string NameOnPage(const DesignerBlock& control);
// The control was called [old_name] on its page, and is called otherwise now.
void FollowOnTabPage(DesignerPart& part, DesignerBlock& control, const std::string& old_name);
// A new control stands on the page that is in front.
void PutOnTabPage(DesignerPart& part, DesignerBlock& control);
// The later controls of the page move up, as the dialog writes them itself.
void TakeOffTabPage(DesignerPart& part, DesignerBlock& control);

}  // namespace corvane::environment
