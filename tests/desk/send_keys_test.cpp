#include "desk/send_keys.h"

#include <QCoreApplication>
#include <QPlainTextEdit>
#include <gtest/gtest.h>

#include "runtime/error.h"

namespace corvane::desk {
namespace {

constexpr auto kNone = Qt::NoModifier;
constexpr auto kShift = Qt::ShiftModifier;
constexpr auto kCtrl = Qt::ControlModifier;
constexpr auto kAlt = Qt::AltModifier;

struct Case {
  const char* keys;
  std::vector<KeyStroke> strokes;
};

TEST(SendKeys, ReadsEveryWayOfWritingAKey) {
  const Case cases[] = {
      {"", {}},
      {"ab", {{Qt::Key_A, kNone, "a"}, {Qt::Key_B, kNone, "b"}}},
      {"~", {{Qt::Key_Return, kNone, "\r"}}},
      {"{ENTER}", {{Qt::Key_Return, kNone, "\r"}}},
      {"{home}", {{Qt::Key_Home, kNone, {}}}},
      {"{F16}", {{Qt::Key_F16, kNone, {}}}},
      {"{LEFT 2}", {{Qt::Key_Left, kNone, {}}, {Qt::Key_Left, kNone, {}}}},
      {"{x 2}", {{Qt::Key_X, kNone, "x"}, {Qt::Key_X, kNone, "x"}}},
      {"^v", {{Qt::Key_V, kCtrl, {}}}},
      {"+a", {{Qt::Key_A, kShift, "A"}}},
      {"+(ab)c", {{Qt::Key_A, kShift, "A"}, {Qt::Key_B, kShift, "B"}, {Qt::Key_C, kNone, "c"}}},
      {"^+{END}", {{Qt::Key_End, kCtrl | kShift, {}}}},
      {"%(fs)", {{Qt::Key_F, kAlt, {}}, {Qt::Key_S, kAlt, {}}}},
      {"{+}{%}{~}", {{Qt::Key_Plus, kNone, "+"}, {Qt::Key_Percent, kNone, "%"}, {Qt::Key_AsciiTilde, kNone, "~"}}},
      {"{}}{{}", {{Qt::Key_BraceRight, kNone, "}"}, {Qt::Key_BraceLeft, kNone, "{"}}},
  };
  for (const Case& each : cases) EXPECT_EQ(ParseKeys(each.keys), each.strokes) << each.keys;
}

TEST(SendKeys, BadSyntaxIsError5) {
  for (const char* keys : {"{NOKEY}", "(ab", ")", "}", "{", "{LEFT -1}", "^", "{F17}"}) {
    try {
      ParseKeys(keys);
      ADD_FAILURE() << keys << " was taken";
    } catch (const runtime::Error& error) {
      EXPECT_EQ(error.Number(), 5) << keys;
    }
  }
}

TEST(SendKeys, TypesIntoTheWidgetWithTheFocus) {
  QPlainTextEdit edit;
  edit.show();
  edit.activateWindow();
  edit.setFocus();
  QCoreApplication::processEvents();
  PressKeys(ParseKeys("Dim x~{UP}{END}y"));
  EXPECT_EQ(edit.toPlainText(), "Dim xy\n");
}

}  // namespace
}  // namespace corvane::desk
