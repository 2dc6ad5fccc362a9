// The places of the explorer's controls: a golden, and nothing covered or cut off at any size.
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

}  // namespace
}  // namespace corvane::tests
