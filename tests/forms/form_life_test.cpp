#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/forms/error_number.h"
#include "tests/forms/sample_window.h"

namespace corvane::forms {
namespace {

struct FormLife : testing::Test {
  HeadlessToolkit toolkit;
  SampleWindow window{toolkit};
  SampleWindow other{toolkit, "frmOther"};
};

TEST_F(FormLife, ShowRaisesLoadResizeActivateAndGivesTheFocus) {
  window.Show();
  EXPECT_EQ(window.Taken(), (Log{"Load", "Resize", "Activate", "txtA_GotFocus"}));
  EXPECT_EQ(window.ActiveControl(), &window.txtA);
  EXPECT_TRUE(window.txtA.HasFocus());
}

TEST_F(FormLife, LoadingAloneIsInvisible) {
  window.LoadForm();
  EXPECT_EQ(window.Taken(), (Log{"Load"}));
  EXPECT_FALSE(window.Visible());
  window.LoadForm();
  EXPECT_EQ(window.Taken(), Log{});
}

TEST_F(FormLife, ShowAgainOnlyActivates) {
  window.Show();
  window.Taken();
  window.Show();
  EXPECT_EQ(window.Taken(), Log{});
}

TEST_F(FormLife, AFormWithoutFocusableControlsGetsTheFocusItself) {
  Form bare(toolkit, "frmBare");
  Log log;
  bare.Activate = [&] { log.push_back("Activate"); };
  bare.GotFocus = [&] { log.push_back("GotFocus"); };
  bare.Show();
  EXPECT_EQ(log, (Log{"Activate", "GotFocus"}));
}

TEST_F(FormLife, SetFocusInActivateIsToldOnce) {
  window.Activate = [&] { window.lst.SetFocus(); };
  window.Show();
  EXPECT_EQ(window.Taken(), (Log{"Load", "Resize", "lst_GotFocus"}));
}

TEST_F(FormLife, SetFocusInLoadFails) {
  long number = 0;
  window.Load = [&] { number = NumberOf([&] { window.lst.SetFocus(); }); };
  window.Show();
  EXPECT_EQ(number, 5);
}

TEST_F(FormLife, AnotherFormTakesTheActivationWithLostFocusBeforeDeactivate) {
  window.Show();
  window.Taken();
  other.log.clear();
  other.Show();
  EXPECT_EQ(window.Taken(), (Log{"txtA_LostFocus", "Deactivate"}));
  EXPECT_EQ(other.Taken(), (Log{"Load", "Resize", "Activate", "txtA_GotFocus"}));
  EXPECT_EQ(toolkit.ActiveForm(), &other);
  window.UserActivate(true);
  EXPECT_EQ(window.Taken(), (Log{"Activate", "txtA_GotFocus"}));
}

TEST_F(FormLife, AWindowOfAnotherProgramIsNotDeactivate) {
  window.Show();
  window.Taken();
  window.UserActivate(false);
  window.UserActivate(true);
  EXPECT_EQ(window.Taken(), Log{});
}

TEST_F(FormLife, HideActivatesTheFormBehind) {
  window.Show();
  other.Show();
  window.Taken(), other.Taken();
  other.Hide();
  EXPECT_EQ(other.Taken(), (Log{"txtA_LostFocus", "Deactivate"}));
  EXPECT_EQ(window.Taken(), (Log{"Activate", "txtA_GotFocus"}));
}

TEST_F(FormLife, UnloadRaisesNoDeactivate) {
  window.Show();
  other.Show();
  other.Taken();
  other.Unload();
  EXPECT_EQ(other.Taken(), (Log{"QueryUnload 1", "Unload"}));
  EXPECT_EQ(toolkit.ActiveForm(), &window);
}

TEST_F(FormLife, TheCloseBoxTellsModeZero) {
  window.Show();
  window.Taken();
  EXPECT_TRUE(User(window).Close());
  EXPECT_EQ(window.Taken(), (Log{"QueryUnload 0", "Unload"}));
}

TEST_F(FormLife, QueryUnloadAndUnloadCanRefuse) {
  window.Show();
  window.QueryUnload = [](bool& cancel, UnloadMode) { cancel = true; };
  EXPECT_FALSE(window.Unload());
  EXPECT_TRUE(window.Visible());
  window.QueryUnload = nullptr;
  window.UnloadEvent = [](bool& cancel) { cancel = true; };
  EXPECT_FALSE(window.Unload());
  window.UnloadEvent = nullptr;
  EXPECT_TRUE(window.Unload());
  EXPECT_FALSE(window.IsLoaded());
}

TEST_F(FormLife, UnloadOfWhatIsNotLoadedDoesNothing) {
  EXPECT_TRUE(window.Unload());
  EXPECT_EQ(window.Taken(), Log{});
}

TEST_F(FormLife, AFailingUnloadHandlerKeepsTheFormLoaded) {
  window.Show();
  window.UnloadEvent = [](bool&) { throw Error(5); };
  EXPECT_EQ(NumberOf([&] { window.Unload(); }), 5);
  EXPECT_TRUE(window.IsLoaded());
  window.UnloadEvent = nullptr;
  EXPECT_TRUE(window.Unload());
}

TEST_F(FormLife, UnloadInsideUnloadIsPassedOver) {
  window.Show();
  window.Taken();
  window.UnloadEvent = [&](bool&) { window.Unload(); };
  window.Unload();
  EXPECT_EQ(window.Taken(), (Log{"QueryUnload 1"}));
  EXPECT_FALSE(window.IsLoaded());
}

TEST_F(FormLife, AnUnloadedFormLoadsAgainWithItsMembersAsTheyWere) {
  window.Show();
  window.txtA.SetText("kept");
  window.Unload();
  EXPECT_EQ(window.txtA.Peer(), nullptr);
  window.Taken();
  window.Show();
  EXPECT_EQ(window.Taken(), (Log{"Load", "Resize", "Activate", "txtA_GotFocus"}));
  EXPECT_EQ(window.txtA.Text(), "kept");
  EXPECT_NE(window.txtA.Peer(), nullptr);
}

TEST_F(FormLife, UnloadDestroysControlsMadeAtRunTime) {
  window.Show();
  window.AddControl("VB.Label", "lblNew", window).SetVisible(true);
  window.Unload();
  EXPECT_EQ(window.Find("lblNew"), nullptr);
}

TEST_F(FormLife, UnloadInLoadMakesShowFail) {
  window.Load = [&] { window.Unload(); };
  EXPECT_EQ(NumberOf([&] { window.Show(); }), 364);
  EXPECT_FALSE(window.Visible());
}

TEST_F(FormLife, HideInActivateLeavesTheFormHidden) {
  window.Activate = [&] { window.Hide(); };
  window.Show();
  EXPECT_FALSE(window.Visible());
  EXPECT_EQ(toolkit.ActiveForm(), nullptr);
}

TEST_F(FormLife, HiddenAndShownAgainGetsItsFocusBack) {
  window.Show();
  window.lst.SetFocus();
  window.Hide();
  window.Taken();
  window.Show();
  EXPECT_EQ(window.Taken(), (Log{"Activate", "lst_GotFocus"}));
}

TEST_F(FormLife, MoveRaisesResizeOnlyForAnotherSize) {
  window.Show();
  window.Taken();
  window.Move(500, 500);
  EXPECT_EQ(window.Taken(), Log{});
  window.SetWidth(7000);
  EXPECT_EQ(window.Taken(), (Log{"Resize"}));
  window.UserResize(8000, 5000);
  window.UserResize(8000, 5000);
  EXPECT_EQ(window.Taken(), (Log{"Resize"}));
}

// A toolkit shows a window that was hidden when its state changed.
TEST_F(FormLife, ASizeThatCameOfShowingIsResizedOnce) {
  window.Show();
  window.Hide();
  window.SetWindowState(vbMaximized);
  window.Taken();
  window.NoteSize(9000, 6000);
  window.Show();
  const Log log = window.Taken();
  EXPECT_EQ(std::count(log.begin(), log.end(), "Resize"), 1);
  EXPECT_EQ(window.Width(), 9000);
}

TEST_F(FormLife, MinimisingAndRestoringRaiseResize) {
  window.Show();
  window.Taken();
  window.UserWindowState(vbMinimized);
  EXPECT_EQ(window.WindowState(), vbMinimized);
  window.SetWindowState(vbNormal);
  EXPECT_EQ(window.Taken(), (Log{"Resize", "Resize"}));
  EXPECT_EQ(NumberOf([&] { window.SetWindowState(3); }), 380);
}

TEST_F(FormLife, AStateThatIsSetOutOfSightRaisesResizeWhenTheFormIsShown) {
  window.LoadForm();
  window.Taken();
  window.SetWindowState(vbMinimized);
  EXPECT_EQ(window.Taken(), Log{});
  window.Show();
  EXPECT_THAT(window.Taken(), ::testing::Contains("Resize").Times(1));
  window.Hide();
  window.Taken();
  window.SetWindowState(vbNormal);
  EXPECT_EQ(window.Taken(), Log{});
  window.Show();
  EXPECT_THAT(window.Taken(), ::testing::Contains("Resize").Times(1));
}

TEST_F(FormLife, ScaleIsInsideTheFrame) {
  window.Move(0, 0, 6000, 4000);
  EXPECT_EQ(window.ScaleWidth(), 6000 - 120);
  EXPECT_EQ(window.ScaleHeight(), 4000 - 60 - 285 - 60);
  window.SetBorderStyle(FormBorder::None);
  EXPECT_EQ(window.ScaleWidth(), 6000);
}

struct Modal : FormLife {};

TEST_F(Modal, ReturnsAfterHideWithItsValues) {
  toolkit.OnModal("frmOther", [&](Form& form) {
    EXPECT_TRUE(form.IsModal());
    User(form).Enter(other.txtA, "in");
    other.Hide();
  });
  other.ShowModal();
  EXPECT_EQ(other.txtA.Text(), "in");
  EXPECT_TRUE(other.IsLoaded());
  EXPECT_EQ(toolkit.Faults(), Log{});
}

TEST_F(Modal, ReturnsAfterUnload) {
  toolkit.OnModal("frmOther", [&](Form&) { other.Unload(); });
  other.ShowModal();
  EXPECT_FALSE(other.IsLoaded());
  EXPECT_EQ(toolkit.Faults(), Log{});
}

TEST_F(Modal, OnAVisibleFormIsError400) {
  window.Show();
  EXPECT_EQ(NumberOf([&] { window.ShowModal(); }), 400);
}

TEST_F(Modal, ModelessUnderAModalFormIsError401) {
  long number = 0;
  toolkit.OnModal("frmOther", [&](Form&) {
    number = NumberOf([&] { window.Show(); });
    other.Hide();
  });
  other.ShowModal();
  EXPECT_EQ(number, 401);
  EXPECT_FALSE(window.IsLoaded());
}

TEST_F(Modal, TakesAndGivesBackTheActivation) {
  window.Show();
  window.Taken();
  toolkit.OnModal("frmOther", [&](Form&) { other.Hide(); });
  other.ShowModal();
  EXPECT_EQ(window.Taken(), (Log{"txtA_LostFocus", "Deactivate", "Activate", "txtA_GotFocus"}));
  EXPECT_EQ(other.Taken(), (Log{"Load", "Resize", "Activate", "txtA_GotFocus", "txtA_LostFocus", "Deactivate"}));
}

TEST_F(Modal, OtherWindowsTakeNoInput) {
  window.Show();
  window.Taken();
  bool clicked = true, typed = true, closed = true;
  toolkit.OnModal("frmOther", [&](Form&) {
    clicked = User(window).Click(window.cmdOK);
    typed = User(window).Type("x");
    closed = User(window).Close();
    other.Hide();
  });
  other.ShowModal();
  EXPECT_FALSE(clicked || typed || closed);
  EXPECT_EQ(window.txtA.Text(), "");
}

TEST_F(Modal, HiddenInLoadNeverRuns) {
  other.Activate = [&] { other.Hide(); };
  other.ShowModal();
  EXPECT_FALSE(other.Visible());
  EXPECT_EQ(toolkit.Faults(), Log{});
}

TEST_F(Modal, WithNoActPreparedIsAFaultAndIsClosed) {
  other.ShowModal();
  EXPECT_FALSE(other.Visible());
  EXPECT_EQ(toolkit.Faults(), (Log{"frmOther was shown modally with no act prepared"}));
}

TEST_F(Modal, LeftOpenIsAFaultAndIsClosed) {
  other.QueryUnload = [](bool& cancel, UnloadMode) { cancel = true; };
  toolkit.OnModal("frmOther", [](Form&) {});
  other.ShowModal();
  EXPECT_FALSE(other.Visible());
  EXPECT_EQ(toolkit.Faults(), (Log{"frmOther stayed open after its act"}));
}

}  // namespace
}  // namespace corvane::forms
