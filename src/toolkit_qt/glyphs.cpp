#include "toolkit_qt/glyphs.h"

#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <memory>

#include "runtime/code_page.h"
#include "toolkit_qt/fonts.h"
#include "toolkit_qt/texts.h"

namespace corvane::toolkit_qt {

GlyphFont::GlyphFont(const forms::Font& font, double scale) : font_(font), scale_(scale) {
  QRawFont measured = QRawFont::fromFont(ShownFont(font));
  ascent_ = static_cast<int>(std::ceil(measured.ascent()));
  height_ = ascent_ + static_cast<int>(std::ceil(measured.descent()));
  FaceOf(measured);
  ReadCodePage();
}

int GlyphFont::FaceOf(const QRawFont& raw) {
  for (size_t i = 0; i < faces_.size(); ++i) {
    if (faces_[i].measured == raw) return static_cast<int>(i);
  }
  QRawFont drawn = raw;
  if (scale_ != 1) drawn.setPixelSize(raw.pixelSize() * scale_);
  faces_.push_back({raw, drawn});
  return static_cast<int>(faces_.size()) - 1;
}

void GlyphFont::ReadCodePage() {
  const auto& page = runtime::AnsiCodePage();
  code_page_ = page.Number();
  double_byte_ = page.IsDoubleByte();
  of_character_.clear();
  for (int byte = 0; byte < 256; ++byte) {
    const char one = static_cast<char>(byte);
    const auto shown = ShownText({&one, 1}).toUcs4();
    of_byte_[byte] = shown.isEmpty() ? Glyph{} : Look(shown[0]);
  }
}

GlyphFont::Glyph GlyphFont::Look(char32_t character) {
  if (character < 32 || character == 127) return {};
  const QString text = QString::fromUcs4(&character, 1);
  const auto indexes = faces_[0].measured.glyphIndexesForString(text);
  if (indexes.size() != 1 || indexes[0] == 0) return Substitute(character);
  const auto advances = faces_[0].measured.advancesForGlyphIndexes(indexes);
  return {indexes[0], 0, static_cast<int>(std::lround(advances[0].x()))};
}

// From another font, where this one lacks the character.
GlyphFont::Glyph GlyphFont::Substitute(char32_t character) {
  QTextLayout layout(QString::fromUcs4(&character, 1), ShownFont(font_));
  layout.beginLayout();
  const QTextLine line = layout.createLine();
  layout.endLayout();
  const auto runs = layout.glyphRuns();
  if (!line.isValid() || runs.isEmpty() || runs[0].glyphIndexes().isEmpty()) return {};
  return {runs[0].glyphIndexes()[0], FaceOf(runs[0].rawFont()), static_cast<int>(std::lround(line.naturalTextWidth()))};
}

template <class Visit>
void GlyphFont::ForEachGlyph(std::string_view bytes, Visit visit) {
  if (code_page_ != runtime::AnsiCodePage().Number()) ReadCodePage();
  if (!double_byte_) {
    for (char byte : bytes) visit(of_byte_[static_cast<unsigned char>(byte)]);
    return;
  }
  for (char32_t character : ShownText(bytes).toUcs4()) {
    auto found = of_character_.find(character);
    if (found == of_character_.end()) found = of_character_.insert(character, Look(character));
    visit(*found);
  }
}

int GlyphFont::Width(std::string_view bytes) {
  int width = 0;
  ForEachGlyph(bytes, [&](const Glyph& glyph) { width += glyph.advance; });
  return width;
}

void GlyphFont::Draw(QPainter& painter, QPointF place, std::string_view bytes, const QColor& color) {
  const QPointF base(std::floor(place.x() + 0.5), std::floor(place.y() + 0.5) + std::round(ascent_ * scale_));
  painter.setPen(color);
  indexes_.clear();
  positions_.clear();
  int pen = 0, face = 0;
  ForEachGlyph(bytes, [&](const Glyph& glyph) {
    if (glyph.index == 0) return;
    if (glyph.face != face) DrawRun(painter, face, base);
    face = glyph.face;
    indexes_.push_back(glyph.index);
    positions_.emplace_back(pen * scale_, 0);
    pen += glyph.advance;
  });
  DrawRun(painter, face, base);
  if (font_.Underline || font_.Strikethrough) DrawRules(painter, base, pen * scale_, color);
}

void GlyphFont::DrawRun(QPainter& painter, int face, QPointF base) {
  if (indexes_.empty()) return;
  run_.setRawFont(faces_[face].drawn);
  run_.setRawData(indexes_.data(), positions_.data(), static_cast<int>(indexes_.size()));
  painter.drawGlyphRun(base, run_);
  indexes_.clear();
  positions_.clear();
}

void GlyphFont::DrawRules(QPainter& painter, QPointF base, double width, const QColor& color) {
  const double thickness = std::max(1.0, std::round(scale_));
  const auto rule = [&](double y) { painter.fillRect(QRectF(base.x(), std::round(y), width, thickness), color); };
  if (font_.Underline) rule(base.y() + thickness);
  if (font_.Strikethrough) rule(base.y() - ascent_ * scale_ * 0.3);
}

GlyphFont& GlyphFontOf(const forms::Font& font, double scale) {
  struct Entry {
    forms::Font font;
    double scale;
    std::unique_ptr<GlyphFont> glyphs;
  };
  static std::vector<Entry> fonts;  // a handful: the last used stands in front
  const auto found = std::find_if(fonts.begin(), fonts.end(),
                                  [&](const Entry& entry) { return entry.scale == scale && entry.font == font; });
  if (found == fonts.end()) {
    fonts.insert(fonts.begin(), {font, scale, std::make_unique<GlyphFont>(font, scale)});
  } else if (found != fonts.begin()) {
    std::rotate(fonts.begin(), found, found + 1);
  }
  return *fonts.front().glyphs;
}

}  // namespace corvane::toolkit_qt
