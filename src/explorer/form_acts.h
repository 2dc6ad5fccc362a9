// What a row of the explorer's tables can name of the window: an act, the choice of an entry, a rule.
#pragma once

namespace corvane::explorer {

class frmAddIn;

using Act = void (frmAddIn::*)();
using Choice = void (frmAddIn::*)(int entry);
using Rule = bool (frmAddIn::*)() const;

}  // namespace corvane::explorer
