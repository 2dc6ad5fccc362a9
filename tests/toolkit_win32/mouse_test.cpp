// The mouse between press and release: who holds it, and what becomes of a press that the system takes away.
#include "tests/toolkit_win32/window_fixture.h"

namespace corvane::toolkit_win32 {
namespace {

using Log = std::vector<std::string>;

class MouseTest : public WindowTest {
 protected:
  MouseTest() {
    pic.Move(120, 120, 1500, 1500), list.Move(1800, 120, 1500, 1500);
    for (int row = 0; row < 3; ++row) list.AddItem("row " + std::to_string(row));
    pic.MouseDown = [this](int, int, forms::Twips, forms::Twips) { told.push_back("MouseDown"); };
    pic.MouseUp = [this](int button, int, forms::Twips x, forms::Twips y) {
      told.push_back("MouseUp " + std::to_string(button) + (x < 0 && y < 0 ? " outside" : ""));
    };
    pic.Click = [this] { told.push_back("Click"); };
  }
  void PressOn(const forms::Control& control) {
    PostMouse(WindowOf(control), WM_LBUTTONDOWN, Middle(WindowOf(control)), MK_LBUTTON);
  }

  forms::PictureBox pic{form, "pic"};
  forms::ListBox list{form, "lst"};
};

TEST_F(MouseTest, ALostCaptureIsAReleaseOutsideTheControl) {
  Show();
  PressOn(pic);
  EXPECT_EQ(GetCapture(), WindowOf(pic));
  ReleaseCapture();
  EXPECT_EQ(told, (Log{"MouseDown", "MouseUp 1 outside"}));
  ReleaseCapture();
  SetCapture(WindowOf(pic)), ReleaseCapture();
  EXPECT_EQ(told.size(), 2u) << "without a button nothing is let go";
}

TEST_F(MouseTest, ACaptureLostWhileThePressIsToldIsToldBehindIt) {
  Show();
  pic.MouseDown = [this](int, int, forms::Twips, forms::Twips) {
    ReleaseCapture();
    told.push_back("MouseDown");
  };
  PressOn(pic);
  EXPECT_EQ(told, (Log{"MouseDown", "MouseUp 1 outside"}));
}

TEST_F(MouseTest, TheReleaseBehindALostCaptureIsNotToldAgain) {
  Show();
  PressOn(pic);
  ReleaseCapture();
  PostMouse(WindowOf(pic), WM_LBUTTONUP, Middle(WindowOf(pic)));
  EXPECT_EQ(told, (Log{"MouseDown", "MouseUp 1 outside"}));
  told.clear();
  Click(pic);
  EXPECT_EQ(told, (Log{"MouseDown", "MouseUp 1", "Click"}));
}

TEST_F(MouseTest, AButtonThatWentDownElsewhereIsNotTold) {
  Show();
  PostMouse(WindowOf(pic), WM_RBUTTONUP, Middle(WindowOf(pic)));
  EXPECT_EQ(told, Log{});
}

TEST_F(MouseTest, APressThatAnotherControlDoesNotAllowIsNotTold) {
  forms::TextBox txt(form, "txt");
  txt.Validate = [](bool& cancel) { cancel = true; };
  Show();
  txt.SetFocus();
  Click(pic);
  EXPECT_EQ(told, Log{});
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(MouseTest, AReleaseIsToldOnce) {
  Show();
  Click(pic);
  EXPECT_EQ(told, (Log{"MouseDown", "MouseUp 1", "Click"}));
}

TEST_F(MouseTest, AListIsClickedWithTheMouseFree) {
  Show();
  HWND held = WindowOf(list);
  list.Click = [&] { held = GetCapture(); };
  const POINT first_row{20, 4};
  PostMouse(WindowOf(list), WM_LBUTTONDOWN, first_row, MK_LBUTTON);
  EXPECT_EQ(GetCapture(), WindowOf(list));
  PostMouse(WindowOf(list), WM_LBUTTONUP, first_row);
  EXPECT_EQ(held, nullptr);
  EXPECT_EQ(list.ListIndex(), 0);
}

}  // namespace
}  // namespace corvane::toolkit_win32
