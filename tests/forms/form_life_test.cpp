#include <gtest/gtest.h>

#include "tests/forms/sample_window.h"

namespace corvane::forms {
namespace {

struct FormLife : testing::Test {
  HeadlessToolkit toolkit;
  SampleWindow window{toolkit};
};

TEST_F(FormLife, ShowRaisesLoadResizeActivateAndGivesTheFocus) {
  window.Show();
  EXPECT_EQ(window.Taken(), (Log{"Load", "Resize", "Activate", "txtA_GotFocus"}));
  EXPECT_EQ(window.ActiveControl(), &window.txtA);
  EXPECT_TRUE(window.txtA.HasFocus());
}

}  // namespace
}  // namespace corvane::forms
