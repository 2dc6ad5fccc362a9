#include <cmath>
#include <cstdio>

#include "forms/headless_toolkit.h"

namespace corvane::forms {

namespace {

std::string Number(Twips value) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", static_cast<double>(value));
  return text;
}

std::string ColorText(Color color) {
  char text[32];
  if (color & 0x80000000) {
    std::snprintf(text, sizeof text, "system:%u", static_cast<unsigned>(color & 0xFFFF));
  } else {
    std::snprintf(text, sizeof text, "#%02x%02x%02x", static_cast<unsigned>(color & 0xFF),
                  static_cast<unsigned>(color >> 8 & 0xFF), static_cast<unsigned>(color >> 16 & 0xFF));
  }
  return text;
}

std::string Numbers(std::initializer_list<Twips> values) {
  std::string text;
  for (Twips value : values) text += " " + Number(value);
  return text;
}

std::string BoxText(const Rect& box) {
  return Numbers({box.left, box.top, box.width, box.height});
}

std::string FontText(const Font& font) {
  return " " + font.Name + " " + Number(font.Size) + (font.Bold ? " bold" : "") + (font.Italic ? " italic" : "") +
         (font.Underline ? " underline" : "") + (font.Strikethrough ? " strikethrough" : "");
}

}  // namespace

Twips FixedMetrics::TextWidth(std::string_view text, const Font& font) {
  return static_cast<Twips>(text.size()) * std::round(font.Size * 20 / 2);
}

Twips FixedMetrics::TextHeight(const Font& font) {
  return std::round(font.Size * 20 * 1.2f);
}

void RecordingCanvas::Clear(Color back) {
  calls_.clear();
  Record("clear " + ColorText(back));
}

void RecordingCanvas::FillBox(const Rect& box, Color color) {
  Record("fill" + BoxText(box) + " " + ColorText(color));
}

void RecordingCanvas::FrameBox(const Rect& box, Color color) {
  Record("frame" + BoxText(box) + " " + ColorText(color));
}

void RecordingCanvas::Line(Twips x1, Twips y1, Twips x2, Twips y2, Color color, int width) {
  Record("line" + Numbers({x1, y1, x2, y2}) + " " + ColorText(color) + " width " + std::to_string(width));
}

void RecordingCanvas::Circle(Twips x, Twips y, Twips radius, Color outline, bool filled, Color fill) {
  Record("circle" + Numbers({x, y, radius}) + " " + ColorText(outline) + (filled ? " filled " + ColorText(fill) : ""));
}

void RecordingCanvas::Text(Twips x, Twips y, std::string_view text, const Font& font, Color color) {
  Record("text" + Numbers({x, y}) + " \"" + std::string(text) + "\"" + FontText(font) + " " + ColorText(color));
}

std::string RecordingCanvas::PictureText(const Picture& picture) {
  unsigned sum = 0;
  for (const char byte : picture.bytes) sum += static_cast<unsigned char>(byte);
  return std::to_string(picture.bytes.size()) + " bytes, sum " + std::to_string(sum);
}

void RecordingCanvas::PaintPicture(const PictureRef& picture, const Rect& place) {
  if (picture) Record("picture" + BoxText(place) + " " + PictureText(*picture));
}

void RecordingCanvas::Refresh() {
  Record("refresh");
}

}  // namespace corvane::forms
