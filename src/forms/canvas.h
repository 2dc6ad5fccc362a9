// Canvas: what a toolkit lets a picture box draw with. Twips; text is bytes of the ANSI code page.
#pragma once

#include <string_view>

#include "forms/types.h"

namespace corvane::forms {

// Text metrics, also without a canvas at hand.
class TextMetrics {
 public:
  virtual ~TextMetrics() = default;
  virtual Twips TextWidth(std::string_view text, const Font& font) = 0;
  virtual Twips TextHeight(const Font& font) = 0;  // of one line
};

class Canvas : public TextMetrics {
 public:
  virtual void Clear(Color back) = 0;
  virtual void FillBox(const Rect& box, Color color) = 0;
  virtual void FrameBox(const Rect& box, Color color) = 0;  // one logical pixel wide, inside the box
  virtual void Line(Twips x1, Twips y1, Twips x2, Twips y2, Color color, int width = 1) = 0;
  virtual void Circle(Twips x, Twips y, Twips radius, Color outline, bool filled, Color fill) = 0;
  // The top left corner of the text stands at x, y; the background stays.
  virtual void Text(Twips x, Twips y, std::string_view text, const Font& font, Color color) = 0;
  // Nothing is drawn for an empty or undecodable picture.
  virtual void PaintPicture(const PictureRef& picture, const Rect& place) = 0;
  // Shows on the screen what was drawn since the last call.
  virtual void Refresh() = 0;
};

}  // namespace corvane::forms
