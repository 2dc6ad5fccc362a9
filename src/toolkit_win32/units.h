// Twips and pixels of the display. Edges are rounded, not sizes: what touches in twips touches in pixels.
#pragma once

#include <cmath>

#include "forms/types.h"
#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

inline constexpr int kTwipsPerInch = 1440;
inline constexpr int kLogicalDpi = 96;

class PixelScale {
 public:
  explicit PixelScale(int dpi) : dpi_(dpi) {}
  int Dpi() const { return dpi_; }

  int Pixels(forms::Twips value) const {
    return static_cast<int>(std::floor(static_cast<double>(value) * dpi_ / kTwipsPerInch + 0.5));
  }
  forms::Twips TwipsOf(double pixels) const { return static_cast<forms::Twips>(pixels * kTwipsPerInch / dpi_); }
  RECT PixelsOf(const forms::Rect& place) const {
    return {Pixels(place.left), Pixels(place.top), Pixels(place.left + place.width), Pixels(place.top + place.height)};
  }
  // Of a measure in logical pixels (96 to the inch), at least 1 for one that is.
  int Scaled(int logical) const {
    const int pixels = MulDiv(logical, dpi_, kLogicalDpi);
    return logical > 0 && pixels == 0 ? 1 : pixels;
  }

 private:
  int dpi_;
};

inline int WidthOf(const RECT& rect) {
  return rect.right - rect.left;
}
inline int HeightOf(const RECT& rect) {
  return rect.bottom - rect.top;
}

}  // namespace corvane::toolkit_win32
