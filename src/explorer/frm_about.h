#pragma once

#include "forms/controls.h"
#include "host/services.h"

namespace corvane::explorer {

// The modal box about the program; its second button shows the readme beside the library.
class frmAbout : public forms::Form {
 public:
  frmAbout(host::Services& services, forms::Toolkit& toolkit);

  forms::Image imgIcon{*this, "imgIcon"};
  forms::Label lblTitle{*this, "lblTitle"}, lblDescription{*this, "lblDescription"}, lblLicence{*this, "lblLicence"};
  forms::CommandButton cmdOk{*this, "cmdOk"}, cmdSysInfo{*this, "cmdSysInfo"};
  forms::TextBox txtRead{*this, "txtRead"};

 private:
  void Design();
  void cmdSysInfo_Click();

  host::Services& services;
};

}  // namespace corvane::explorer
