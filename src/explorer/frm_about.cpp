#include "explorer/frm_about.h"

#include "forms/icons.h"

namespace corvane::explorer {

namespace {

// The readme's box shows whole lines.
constexpr forms::Twips kLinesOfText = 12, kLineHeight = 195, kTextEdges = 90, kBesideText = 550;

}  // namespace

frmAbout::frmAbout(host::Services& services, forms::Toolkit& toolkit) : Form(toolkit, "frmAbout"), services(services) {
  Design();
  cmdOk.Click = [this] { Unload(); };
  cmdSysInfo.Click = [this] { cmdSysInfo_Click(); };
}

void frmAbout::Design() {
  SetCaption("About Corvane");
  SetBorderStyle(forms::FormBorder::FixedDialog);
  SetIcon(forms::Icon("corvane"));
  Move(2400, 2400, 6300, kLinesOfText * kLineHeight + kTextEdges + kBesideText);
  imgIcon.SetPicture(forms::Icon("corvane"));
  imgIcon.SetStretch(true);
  imgIcon.Move(240, 240, 720, 720);
  lblTitle.SetCaption("Corvane V 1.0");
  lblTitle.SetFont({.Name = "MS Sans Serif", .Size = 13.5f, .Bold = true});
  lblTitle.Move(1200, 240, 4860, 375);
  lblDescription.SetCaption("Project explorer with colour code analysis");
  lblDescription.Move(1200, 705, 4860, 255);
  lblLicence.SetCaption("Free software under the MIT licence, without any warranty.");
  lblLicence.Move(1200, 1080, 4860, 255);
  txtRead.SetMultiLine(true);
  txtRead.SetScrollBars(2);
  txtRead.SetLocked(true);
  txtRead.SetVisible(false);
  txtRead.Move(120, 105, 4545, Height() - kBesideText);
  cmdOk.SetCaption("OK");
  cmdOk.SetDefault(true);
  cmdOk.SetCancel(true);
  cmdOk.Move(4800, 1545, 1260, 375);
  cmdSysInfo.SetCaption("&Read me");
  cmdSysInfo.Move(4800, 2040, 1260, 375);
  cmdOk.SetTabIndex(0);
  cmdSysInfo.SetTabIndex(1);
}

void frmAbout::cmdSysInfo_Click() {
  for (forms::Control* covered :
       std::initializer_list<forms::Control*>{&cmdSysInfo, &imgIcon, &lblTitle, &lblDescription, &lblLicence})
    covered->SetVisible(false);
  std::string text;
  runtime::PassOverErrors([&] { text = services.Files.Read(services.App.Path + "\\readme.txt"); });
  txtRead.SetText(text);
  txtRead.SetVisible(true);
  txtRead.ZOrder();
}

}  // namespace corvane::explorer
