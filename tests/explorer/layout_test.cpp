// The places of the explorer's controls: a golden, and nothing covered or cut off at any size.
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "explorer/frm_about.h"
#include "explorer/frm_add_in.h"
#include "forms/headless_toolkit.h"
#include "forms/layout_text.h"
#include "tests/support/fake_services.h"
#include "tests/support/golden.h"

namespace corvane::tests {
namespace {

using ::testing::IsEmpty;

class ExplorerLayout : public ::testing::Test {
 protected:
  FakeServices services;
  forms::HeadlessToolkit toolkit;
  explorer::frmAddIn form{services, toolkit};
};

TEST_F(ExplorerLayout, IsTheGolden) {
  form.Show();
  EXPECT_TRUE(MatchesGolden(forms::LayoutText(form), "explorer/frmAddIn.layout"));
}

TEST_F(ExplorerLayout, NothingIsCoveredOrCutOffAtAnySize) {
  form.Show();
  const struct { int width, height; } kSizes[] = {{10530, 8400}, {10800, 9600}, {12300, 10500}, {15000, 13500}};
  for (const auto& size : kSizes) {
    form.UserResize(size.width, size.height);
    // The code view lays out its own surface.
    EXPECT_THAT(forms::FindOverlaps(form, {"pic"}), IsEmpty()) << size.width << " x " << size.height;
    EXPECT_THAT(forms::FindClipped(form), IsEmpty()) << size.width << " x " << size.height;
  }
}

TEST_F(ExplorerLayout, ALongTitleStandsOnOneLineUpToTheButtonBesideIt) {
  const std::string title = "Private Sub MDIForm_QueryUnload(Cancel As Integer, UnloadMode As Integer, Optional Ask&)";
  form.Show();
  form.lblSub.SetCaption(title);
  form.Label5.SetCaption("    If Store.Articles.Count > 0 And Not Store.IsDirty Then Save Store");
  for (int width : {10530, 12300}) {
    form.UserResize(width, 9000);
    EXPECT_EQ(form.lblSub.Left() + form.lblSub.Width(), form.cmGo.Left() - 75);
    EXPECT_THAT(forms::FindClipped(form), IsEmpty()) << width;
    EXPECT_THAT(forms::FindOverlaps(form, {"pic"}), IsEmpty()) << width;
  }
  // A second line would stand below the label: what does not fit is not seen, in no part.
  EXPECT_LT(form.lblSub.Height(), toolkit.Metrics().TextHeight(form.lblSub.Font()) + 30);
}

TEST_F(ExplorerLayout, TabGoesFromTheComponentsToTheCode) {
  std::vector<std::string> names;
  for (forms::Control* control : form.TabOrder()) names.push_back(control->Name());
  auto place = [&](const char* name) { return std::find(names.begin(), names.end(), name) - names.begin(); };
  const char* kOrder[] = {"lbxComp1",   "txtFind", "optFirst",  "lbxProc1", "txtFproc", "optProcAll",
                          "optAllProc", "optProj", "cmbSearch", "cmdMore",  "txtClip"};
  for (size_t i = 1; i < std::size(kOrder); ++i) EXPECT_LT(place(kOrder[i - 1]), place(kOrder[i])) << kOrder[i];
}

TEST_F(ExplorerLayout, TheBoxAboutTheProgram) {
  explorer::frmAbout about{services, toolkit};
  about.LoadForm();
  EXPECT_TRUE(MatchesGolden(forms::LayoutText(about), "explorer/frmAbout.layout"));
  EXPECT_THAT(forms::FindOverlaps(about), IsEmpty());
  EXPECT_THAT(forms::FindClipped(about), IsEmpty());
}

TEST_F(ExplorerLayout, TheReadmeStandsAloneAndInWholeLines) {
  explorer::frmAbout about{services, toolkit};
  about.LoadForm();
  about.cmdSysInfo.Click();
  EXPECT_TRUE(about.txtRead.Visible());
  EXPECT_THAT(forms::FindOverlaps(about), IsEmpty());
  EXPECT_THAT(forms::FindClipped(about), IsEmpty());
  for (const forms::Label* label : {&about.lblTitle, &about.lblDescription, &about.lblLicence})
    EXPECT_FALSE(label->Visible()) << label->Name();
  EXPECT_FALSE(about.imgIcon.Visible());
  EXPECT_EQ(std::fmod(about.txtRead.Height() - 90, 195), 0);
}

}  // namespace
}  // namespace corvane::tests
