// FormPages: the dialogs that FORM blocks describe, as the block reader and the commands see them.
#pragma once

#include <string>

namespace corvane::script {

class frmLib;
class ScriptText;

class FormPages {
 public:
  virtual ~FormPages() = default;
  // The script stands behind the opening line [opener] of a block; it stands behind its closing line then, or where
  // the user's way through the pages leads. [show] is false for a dialog that is built and not shown. Leaves the code
  // of the dialog in lastValue. False: the run ends.
  virtual bool Form(frmLib& lib, ScriptText& script, const std::string& opener, bool show) = 0;
  // A change to a control of a dialog, or of a kept block.
  virtual void Modify(frmLib& lib, const std::string& arguments) = 0;
  // The dialog whose event runs closes with this result.
  virtual void CloseDlg(const std::string& result) = 0;
};

}  // namespace corvane::script
