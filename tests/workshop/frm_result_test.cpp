// The window that shows a text.
#include "workshop/frm_result.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/headless_toolkit.h"
#include "forms/layout_text.h"
#include "forms/user.h"
#include "tests/support/golden.h"

namespace corvane::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr char kPoem[] = "first line\r\nSecond line\r\n\r\nlast";

class ResultWindow : public ::testing::Test {
 protected:
  // Shows the text and lets the user act; true when it was confirmed.
  bool Display(const std::string& text, std::function<void(forms::User&)> act, long line = 0) {
    toolkit.OnModal("frmResult", [act](forms::Form& shown) {
      forms::User user(shown);
      act(user);
    });
    return window.DisplayRes(text, "What to read", "A result", line);
  }
  std::vector<std::string> Hits() const {
    std::vector<std::string> rows;
    for (long row = 0; row < window.lstTitle.ListCount(); ++row) rows.push_back(window.lstTitle.List(row));
    return rows;
  }
  void Search(forms::User& user, const std::string& text) {
    user.Enter(window.txtSearch, text);
    user.Press(forms::vbKeyReturn);
  }

  forms::HeadlessToolkit toolkit;
  workshop::frmResult window{toolkit};
};

TEST_F(ResultWindow, ShowsTheTextUnderItsHeadingAndTitle) {
  Display(kPoem, [&](forms::User& user) {
    EXPECT_EQ(window.txtRes.Text(), kPoem);
    EXPECT_EQ(window.lblText.Caption(), "What to read");
    EXPECT_EQ(window.Caption(), "A result");
    user.Click(window.CancelButton);
  });
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
}

TEST_F(ResultWindow, OkHandsTheEditedTextBack) {
  EXPECT_TRUE(Display(kPoem, [&](forms::User& user) {
    user.Enter(window.txtRes, "mine");
    user.Click(window.OKButton);
  }));
  EXPECT_EQ(window.txtRes.Text(), "mine");
}

TEST_F(ResultWindow, CancelEscapeAndTheCloseBoxConfirmNothing) {
  EXPECT_FALSE(Display("x", [&](forms::User& user) { user.Click(window.CancelButton); }));
  EXPECT_FALSE(Display("x", [](forms::User& user) { user.Press(forms::vbKeyEscape); }));
  EXPECT_FALSE(Display("x", [](forms::User& user) { user.Close(); }));
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
}

TEST_F(ResultWindow, AConfirmedOneDoesNotConfirmTheNext) {
  EXPECT_TRUE(Display("x", [&](forms::User& user) { user.Click(window.OKButton); }));
  EXPECT_FALSE(Display("x", [](forms::User& user) { user.Close(); }));
}

TEST_F(ResultWindow, EnterInTheTextIsALineEnd) {
  EXPECT_TRUE(Display("", [&](forms::User& user) {
    user.Type("a\rb");
    user.Click(window.OKButton);
  }));
  EXPECT_EQ(window.txtRes.Text(), "a\r\nb");
}

TEST_F(ResultWindow, TheCaretStandsOnTheLineThatWasNamed) {
  const struct { long line, start; } kCases[] = {{0, 0}, {1, 0}, {2, 12}, {3, 25}, {4, 27}, {9, 27}};
  for (const auto& c : kCases)
    Display(
        kPoem,
        [&](forms::User& user) {
          EXPECT_EQ(window.txtRes.SelStart(), c.start) << c.line;
          user.Click(window.CancelButton);
        },
        c.line);
}

TEST_F(ResultWindow, TheSearchListsTheWholeLineOfEachHit) {
  Display(kPoem, [&](forms::User& user) {
    Search(user, "LINE");
    EXPECT_THAT(Hits(), ElementsAre("first line", "Second line"));
    EXPECT_EQ(window.lstTitle.ItemData(0), 6);
    EXPECT_EQ(window.lstTitle.ItemData(1), 19);
    EXPECT_TRUE(window.lstTitle.Visible());
    EXPECT_EQ(window.ActiveControl(), &window.lstTitle);
    user.Close();
  });
}

TEST_F(ResultWindow, ALineWithTwoHitsIsListedTwice) {
  Display("one on one", [&](forms::User& user) {
    Search(user, "one");
    EXPECT_THAT(Hits(), ElementsAre("one on one", "one on one"));
    user.Close();
  });
}

TEST_F(ResultWindow, EnterOnAHitSelectsItsLine) {
  Display(kPoem, [&](forms::User& user) {
    Search(user, "line");
    user.Press(forms::vbKeyDown);
    user.Press(forms::vbKeyReturn);
    EXPECT_EQ(window.txtRes.SelText(), "Second line");
    EXPECT_FALSE(window.lstTitle.Visible());
    EXPECT_EQ(window.ActiveControl(), &window.txtRes);
    EXPECT_TRUE(window.Visible());
    user.Close();
  });
}

TEST_F(ResultWindow, EscapeHidesTheHitsFirst) {
  EXPECT_TRUE(Display(kPoem, [&](forms::User& user) {
    Search(user, "line");
    user.Press(forms::vbKeyEscape);
    EXPECT_FALSE(window.lstTitle.Visible());
    EXPECT_TRUE(window.Visible());
    user.Click(window.OKButton);
  }));
}

TEST_F(ResultWindow, WithoutAHitNothingIsListed) {
  Display(kPoem, [&](forms::User& user) {
    for (const char* text : {"nowhere", ""}) {
      Search(user, text);
      EXPECT_FALSE(window.lstTitle.Visible()) << text;
    }
    user.Close();
  });
}

TEST_F(ResultWindow, TheDesignedLayoutIsTheGolden) {
  window.LoadForm();
  EXPECT_TRUE(MatchesGolden(forms::LayoutText(window), "workshop/frmResult.layout"));
}

TEST_F(ResultWindow, NothingIsCoveredOrCutOffInEitherWidth) {
  window.LoadForm();
  for (bool wide : {true, false, true, true}) {
    window.NewWidth(wide);
    EXPECT_THAT(forms::FindOverlaps(window), IsEmpty()) << wide;
    EXPECT_THAT(forms::FindClipped(window), IsEmpty()) << wide;
  }
}

TEST_F(ResultWindow, TheWideLayoutPutsTheButtonsAtTheirPlaces) {
  window.LoadForm();
  forms::Rect designed = window.Place();
  window.NewWidth(true);
  EXPECT_EQ(window.Width(), designed.width + 1600);
  EXPECT_EQ(window.Height(), designed.height + 3000);
  EXPECT_GE(window.Height(), 10650);
  EXPECT_EQ(window.OKButton.Top(), window.Height() - 820);
  EXPECT_EQ(window.OKButton.Left(), 5500);
  EXPECT_EQ(window.CancelButton.Left(), 7000);
  window.NewWidth(false);
  EXPECT_EQ(window.Place(), designed);
}

}  // namespace
}  // namespace corvane::tests
