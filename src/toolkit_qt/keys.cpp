#include "toolkit_qt/keys.h"

#include <algorithm>
#include <iterator>

#include "forms/types.h"
#include "toolkit_qt/texts.h"

namespace corvane::toolkit_qt {
namespace {

struct KeyName {
  int qt, code;
};

constexpr KeyName kKeys[] = {
    {Qt::Key_Backspace, 8},
    {Qt::Key_Tab, 9},
    {Qt::Key_Backtab, 9},
    {Qt::Key_Clear, 12},
    {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, 27},
    {Qt::Key_Space, 32},
    {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34},
    {Qt::Key_End, 35},
    {Qt::Key_Home, 36},
    {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},
    {Qt::Key_Down, 40},
    {Qt::Key_Print, 44},
    {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},
    {Qt::Key_Help, 47},
    {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},
    {Qt::Key_Semicolon, 186},
    {Qt::Key_Colon, 186},
    {Qt::Key_Equal, 187},
    {Qt::Key_Plus, 187},
    {Qt::Key_Comma, 188},
    {Qt::Key_Less, 188},
    {Qt::Key_Minus, 189},
    {Qt::Key_Underscore, 189},
    {Qt::Key_Period, 190},
    {Qt::Key_Greater, 190},
    {Qt::Key_Slash, 191},
    {Qt::Key_Question, 191},
    {Qt::Key_QuoteLeft, 192},
    {Qt::Key_AsciiTilde, 192},
    {Qt::Key_BracketLeft, 219},
    {Qt::Key_BraceLeft, 219},
    {Qt::Key_Backslash, 220},
    {Qt::Key_Bar, 220},
    {Qt::Key_BracketRight, 221},
    {Qt::Key_BraceRight, 221},
    {Qt::Key_Apostrophe, 222},
    {Qt::Key_QuoteDbl, 222},
};

// The signs above the digits, by digit.
constexpr char kShiftedDigits[] = ")!@#$%^&*(";

constexpr KeyName kPadKeys[] = {
    {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107}, {Qt::Key_Minus, 109}, {Qt::Key_Period, 110}, {Qt::Key_Slash, 111},
};

template <size_t N>
int CodeIn(const KeyName (&names)[N], int key) {
  const auto found = std::find_if(std::begin(names), std::end(names), [&](KeyName each) { return each.qt == key; });
  return found == std::end(names) ? 0 : found->code;
}

int PadCode(int key) {
  return key >= '0' && key <= '9' ? 96 + key - '0' : CodeIn(kPadKeys, key);
}

int DigitBelow(int sign) {
  for (int digit = 0; digit < 10; ++digit) {
    if (kShiftedDigits[digit] == sign) return '0' + digit;
  }
  return 0;
}

constexpr int kCtrlA = 1;

}  // namespace

int KeyCodeOf(const QKeyEvent& event) {
  const int key = event.key();
  if (event.modifiers() & Qt::KeypadModifier) {
    if (const int code = PadCode(key)) return code;
  }
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F16) return forms::vbKeyF1 + key - Qt::Key_F1;
  if (const int code = CodeIn(kKeys, key)) return code;
  return DigitBelow(key);
}

int KeyAsciiOf(const QKeyEvent& event) {
  const auto held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return held == Qt::ControlModifier ? 10 : 13;
    case Qt::Key_Backspace:
      return held == Qt::ControlModifier ? 127 : 8;
    case Qt::Key_Escape:
      return 27;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return held ? 0 : 9;
    case Qt::Key_Delete:
      return 0;
    default:
      break;
  }
  if (held == Qt::ControlModifier) {
    const int key = event.key();
    return key >= Qt::Key_A && key <= Qt::Key_Z ? kCtrlA + key - Qt::Key_A : 0;
  }
  if (held == Qt::AltModifier || event.text().isEmpty()) return 0;
  const std::string bytes = BytesOf(event.text());
  const auto first = static_cast<unsigned char>(bytes[0]);
  return first < 32 ? 0 : first;
}

int ShiftOf(Qt::KeyboardModifiers modifiers) {
  int shift = 0;
  if (modifiers & Qt::ShiftModifier) shift |= forms::vbShiftMask;
  if (modifiers & Qt::ControlModifier) shift |= forms::vbCtrlMask;
  if (modifiers & Qt::AltModifier) shift |= forms::vbAltMask;
  return shift;
}

int ButtonOf(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return forms::vbLeftButton;
    case Qt::RightButton:
      return forms::vbRightButton;
    case Qt::MiddleButton:
      return forms::vbMiddleButton;
    default:
      return 0;
  }
}

int ButtonsOf(Qt::MouseButtons buttons) {
  int held = 0;
  for (auto each : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    if (buttons & each) held |= ButtonOf(each);
  }
  return held;
}

}  // namespace corvane::toolkit_qt
