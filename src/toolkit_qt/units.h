// Twips and logical pixels. Edges are rounded, not sizes: what touches in twips touches in pixels.
#pragma once

#include <QRect>
#include <cmath>

#include "forms/types.h"

namespace corvane::toolkit_qt {

inline int Pixels(forms::Twips value) {
  return static_cast<int>(std::floor(value / forms::kTwipsPerPixel + 0.5f));
}
inline forms::Twips TwipsOf(double pixels) {
  return static_cast<forms::Twips>(pixels * forms::kTwipsPerPixel);
}

inline QRect PixelsOf(const forms::Rect& place) {
  const int left = Pixels(place.left), top = Pixels(place.top);
  return {left, top, Pixels(place.left + place.width) - left, Pixels(place.top + place.height) - top};
}

}  // namespace corvane::toolkit_qt
