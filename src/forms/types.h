// The plain values of windows: twips, colours, fonts, keys.
#pragma once

#include <cstdint>
#include <string>

#include "runtime/picture.h"

namespace corvane::forms {

using runtime::Picture;
using runtime::PictureRef;

// 1440 to the inch; 15 are one logical pixel.
using Twips = float;
inline constexpr Twips kTwipsPerPixel = 15;

// 0x00BBGGRR, or 0x800000nn for the system's colour nn.
using Color = uint32_t;
constexpr Color RGB(int red, int green, int blue) {
  return static_cast<Color>(red) | static_cast<Color>(green) << 8 | static_cast<Color>(blue) << 16;
}
Color QBColor(int index);  // 0 to 15; else Error 5

enum SystemColor : Color {
  kScrollBars = 0x80000000,
  kWindowBackground = 0x80000005,
  kWindowText = 0x80000008,
  kHighlight = 0x8000000D,
  kHighlightText = 0x8000000E,
  kButtonFace = 0x8000000F,
  kButtonShadow = 0x80000010,
  kGrayText = 0x80000011,
  kButtonText = 0x80000012,
  k3DHighlight = 0x80000014,
  k3DDarkShadow = 0x80000015,
  k3DLight = 0x80000016,
  kInfoText = 0x80000017,
  kInfoBackground = 0x80000018,
};

struct Font {
  std::string Name = "MS Sans Serif";
  float Size = 8.25f;  // points
  bool Bold = false, Italic = false, Underline = false, Strikethrough = false;
  int Charset = 0;
  bool operator==(const Font&) const = default;
};

struct Rect {
  Twips left = 0, top = 0, width = 0, height = 0;
  bool operator==(const Rect&) const = default;
};

struct Point {
  Twips x = 0, y = 0;
};

enum ShiftMask : int { vbShiftMask = 1, vbCtrlMask = 2, vbAltMask = 4 };
enum MouseButton : int { vbLeftButton = 1, vbRightButton = 2, vbMiddleButton = 4 };

enum KeyCode : int {
  vbKeyBack = 8,
  vbKeyTab = 9,
  vbKeyReturn = 13,
  vbKeyShift = 16,
  vbKeyControl = 17,
  vbKeyMenu = 18,
  vbKeyEscape = 27,
  vbKeySpace = 32,
  vbKeyPageUp = 33,
  vbKeyPageDown = 34,
  vbKeyEnd = 35,
  vbKeyHome = 36,
  vbKeyLeft = 37,
  vbKeyUp = 38,
  vbKeyRight = 39,
  vbKeyDown = 40,
  vbKeyInsert = 45,
  vbKeyDelete = 46,
  vbKey0 = 48,
  vbKeyA = 65,
  vbKeyC = 67,
  vbKeyF1 = 112,
  vbKeyF2 = 113,
  vbKeyF3 = 114,
  vbKeyF4 = 115,
  vbKeyF5 = 116,
  vbKeyF10 = 121,
  vbKeyF12 = 123,
};

}  // namespace corvane::forms
