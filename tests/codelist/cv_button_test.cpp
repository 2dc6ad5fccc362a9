#include "codelist/cv_button.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/headless_toolkit.h"
#include "tests/support/fake_services.h"

namespace corvane::codelist {
namespace {

using namespace forms;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class Button : public testing::Test {
 protected:
  struct Window : Form {
    Window(forms::Toolkit& toolkit, host::Services& services)
        : Form(toolkit, "Window"), button(*this, "cmdGo", services) {
      button.Move(0, 0, 1200, 300);
    }
    CvButton button;
  };

  Button() {
    window.Show();
    button.Click = [this] { ++clicks; };
    Canvas().Forget();
  }
  ~Button() override { EXPECT_THAT(toolkit.Faults(), IsEmpty()); }

  RecordingCanvas& Canvas() { return toolkit.CanvasOf(button.pic); }
  std::vector<std::string> Drawn(const std::string& kind) {
    std::vector<std::string> calls;
    for (const std::string& call : Canvas().Calls())
      if (call.compare(0, kind.size(), kind) == 0) calls.push_back(call);
    Canvas().Forget();
    return calls;
  }
  void Press() { button.pic.UserMouseDown(vbLeftButton, 0, 10, 10); }
  void Release() { button.pic.UserMouseUp(vbLeftButton, 0, 10, 10); }

  static std::vector<std::string> Frame(const std::string& top_left, const std::string& bottom_right) {
    return {"line 0 0 1185 0 " + top_left + " width 1", "line 0 0 0 285 " + top_left + " width 1",
            "line 1185 0 1185 285 " + bottom_right + " width 1", "line 0 285 1185 285 " + bottom_right + " width 1"};
  }

  tests::FakeServices services;
  HeadlessToolkit toolkit;
  Window window{toolkit, services};
  CvButton& button = window.button;
  int clicks = 0;
};

const char kShadow[] = "system:16", kWhite[] = "#ffffff", kBlack[] = "#000000";

TEST_F(Button, StartsWithItsNameAsCaption) {
  EXPECT_EQ(button.Caption(), "cmdGo");
  EXPECT_TRUE(button.Enabled());
  EXPECT_EQ(button.ForeColor(), 0u);
  EXPECT_EQ(button.BorderStyle(), 0);
}

TEST_F(Button, DrawsItsCaptionBehindThePicturesPlace) {
  button.SetCaption("&Go");
  EXPECT_THAT(Drawn("text"), ElementsAre("text 340 51 \"&Go\" MS Sans Serif 8.25 #000000"));
  EXPECT_EQ(button.img.Place(), (Rect{30, 30, 240, 240}));
}

TEST_F(Button, APictureStaysSquareInAHighButton) {
  button.Move(0, 0, 500, 900);
  EXPECT_EQ(button.img.Place(), (Rect{30, 30, 840, 840}));
}

TEST_F(Button, ALowButtonHasItsTextAtTheTop) {
  button.SetHeight(150);
  EXPECT_THAT(Drawn("text"), Contains("text 190 0 \"cmdGo\" MS Sans Serif 8.25 #000000"));
}

TEST_F(Button, DisabledItIsGreyAndRaisesNoClick) {
  button.SetEnabled(false);
  EXPECT_THAT(Drawn("text"), ElementsAre("text 340 51 \"cmdGo\" MS Sans Serif 8.25 system:16"));
  EXPECT_FALSE(button.img.Visible());
  button.SetEnabled(false);
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 30 30 240 240 system:16"));
  Press();
  Release();
  EXPECT_EQ(clicks, 0);
  EXPECT_THAT(Drawn("line"), IsEmpty());
}

TEST_F(Button, AClickOnSurfaceOrPictureIsItsClick) {
  Press();
  Release();
  EXPECT_EQ(clicks, 1);
  button.img.UserMouseDown(vbLeftButton, 0, 10, 10);
  button.img.UserMouseUp(vbLeftButton, 0, 10, 10);
  EXPECT_EQ(clicks, 2);
}

TEST_F(Button, PressedItLooksPressedUntilItIsReleased) {
  Press();
  EXPECT_THAT(Drawn("line"), testing::ElementsAreArray(Frame(kBlack, kWhite)));
  EXPECT_EQ(services.loop.yields, 1);
  Release();
  EXPECT_THAT(Drawn("clear"), ElementsAre("clear system:15"));
}

TEST_F(Button, WithABorderItHasAFrameAtRestAndARaisedOneUnderThePointer) {
  button.SetBorderStyle(1);
  EXPECT_THAT(Drawn("line"), testing::ElementsAreArray(Frame(kShadow, kWhite)));
  button.pic.UserMouseMove(0, 0, 10, 10);
  EXPECT_THAT(Drawn("line"), testing::ElementsAreArray(Frame(kWhite, kShadow)));
  EXPECT_TRUE(button.tmr.Enabled());
}

TEST_F(Button, WithoutABorderThePointerChangesNothing) {
  button.pic.UserMouseMove(0, 0, 10, 10);
  EXPECT_THAT(Canvas().Calls(), IsEmpty());
  EXPECT_FALSE(button.tmr.Enabled());
}

// Nor does it when a surface hears the mouse all the same.
TEST_F(Button, DisabledItsBorderStaysAtRest) {
  button.SetBorderStyle(1);
  button.SetEnabled(false);
  Canvas().Forget();
  for (Control* part : {static_cast<Control*>(&button.pic), static_cast<Control*>(&button.img)}) {
    part->UserMouseMove(0, 0, 10, 10);
    part->UserMouseDown(vbLeftButton, 0, 10, 10);
    part->UserMouseUp(vbLeftButton, 0, 10, 10);
    part->MouseMove(0, 0, 10, 10);
    part->MouseDown(vbLeftButton, 0, 10, 10);
    part->MouseUp(vbLeftButton, 0, 10, 10);
    part->Click();
  }
  EXPECT_THAT(Canvas().Calls(), IsEmpty());
  EXPECT_FALSE(button.tmr.Enabled());
  EXPECT_EQ(services.loop.yields, 0);
  EXPECT_EQ(clicks, 0);
  button.SetEnabled(true);
  EXPECT_THAT(Drawn("line"), testing::ElementsAreArray(Frame(kShadow, kWhite)));
}

TEST_F(Button, OverThePictureItLooksAsOverTheSurface) {
  button.SetBorderStyle(1);
  Canvas().Forget();
  button.img.UserMouseMove(0, 0, 10, 10);
  EXPECT_THAT(Drawn("line"), testing::ElementsAreArray(Frame(kWhite, kShadow)));
  EXPECT_TRUE(button.tmr.Enabled());
  toolkit.SetControlUnderPointer(&button.img);
  toolkit.Advance(100);
  EXPECT_TRUE(button.tmr.Enabled());
  button.img.UserMouseDown(vbLeftButton, 0, 10, 10);
  EXPECT_THAT(Drawn("line"), testing::ElementsAreArray(Frame(kBlack, kWhite)));
  EXPECT_EQ(services.loop.yields, 1);
  button.img.UserMouseUp(vbLeftButton, 0, 10, 10);
  EXPECT_THAT(Drawn("line"), testing::ElementsAreArray(Frame(kShadow, kWhite)));
}

TEST_F(Button, LeavingFastStillClearsTheFrame) {
  button.SetBorderStyle(1);
  button.pic.UserMouseMove(0, 0, 10, 10);
  toolkit.SetControlUnderPointer(&button.pic);
  toolkit.Advance(100);
  EXPECT_TRUE(button.tmr.Enabled());
  toolkit.SetControlUnderPointer(nullptr);
  Canvas().Forget();
  toolkit.Advance(100);
  EXPECT_FALSE(button.tmr.Enabled());
  EXPECT_THAT(Drawn("line"), testing::ElementsAreArray(Frame(kShadow, kWhite)));
}

TEST_F(Button, EachPropertyWriteIsAnnouncedAndDrawn) {
  std::string announced;
  button.PropertyChanged = [&](const std::string& name) { announced = name; };
  const std::pair<const char*, std::function<void()>> kWrites[] = {
      {"Picture", [this] { button.SetPicture(nullptr); }},   {"Caption", [this] { button.SetCaption("a"); }},
      {"ForeColor", [this] { button.SetForeColor(1); }},     {"BackColor", [this] { button.SetBackColor(2); }},
      {"Enabled", [this] { button.SetEnabled(true); }},      {"Font", [this] { button.SetFont({}); }},
      {"BorderStyle", [this] { button.SetBorderStyle(1); }}, {"ToolTip", [this] { button.SetToolTip("tip"); }}};
  for (const auto& [name, write] : kWrites) {
    Canvas().Forget();
    write();
    EXPECT_EQ(announced, name);
    EXPECT_EQ(Drawn("text").size(), 1u) << name;
  }
  EXPECT_EQ(button.pic.ToolTipText(), "tip");
  EXPECT_EQ(button.img.ToolTipText(), "tip");
}

}  // namespace
}  // namespace corvane::codelist
