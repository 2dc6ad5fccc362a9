// GlyphFont: a font made ready for drawing at one scale of the display: for each byte of the code page its glyph and
// its advance. Advances are whole logical pixels at every scale and there is no kerning, so widths add up: a text drawn
// in pieces stands where it stands when drawn whole, and what is measured is what is drawn.
#pragma once

#include <QColor>
#include <QGlyphRun>
#include <QHash>
#include <QPainter>
#include <QPointF>
#include <QRawFont>
#include <array>
#include <string_view>
#include <vector>

#include "forms/types.h"

namespace corvane::toolkit_qt {

class GlyphFont {
 public:
  GlyphFont(const forms::Font& font, double scale);

  // Logical pixels.
  int Width(std::string_view bytes);
  int Height() const { return height_; }  // of a line

  // [place]: the top left corner in device pixels; the painter draws device pixels.
  void Draw(QPainter& painter, QPointF place, std::string_view bytes, const QColor& color);

 private:
  struct Glyph {
    quint32 index = 0;
    int face = 0;
    int advance = 0;  // logical pixels; a control character has none and draws nothing
  };
  struct Face {
    QRawFont measured, drawn;
  };
  void ReadCodePage();
  Glyph Look(char32_t character);
  Glyph Substitute(char32_t character);
  int FaceOf(const QRawFont& raw);
  template <class Visit>
  void ForEachGlyph(std::string_view bytes, Visit visit);
  void DrawRun(QPainter& painter, int face, QPointF base);
  void DrawRules(QPainter& painter, QPointF place, double width, const QColor& color);

  forms::Font font_;
  double scale_;
  int height_ = 0, ascent_ = 0;
  int code_page_ = 0;
  bool double_byte_ = false;
  std::vector<Face> faces_;
  std::array<Glyph, 256> of_byte_;
  QHash<char32_t, Glyph> of_character_;  // of the double-byte code pages
  std::vector<quint32> indexes_;
  std::vector<QPointF> positions_;
  QGlyphRun run_;
};

// Kept from call to call.
GlyphFont& GlyphFontOf(const forms::Font& font, double scale);

}  // namespace corvane::toolkit_qt
