#include "toolkit_qt/fonts.h"

#include <QFontMetricsF>
#include <QStringList>
#include <algorithm>
#include <cmath>

#include "toolkit_qt/texts.h"

namespace corvane::toolkit_qt {
namespace {

constexpr double kPixelsPerPoint = 96.0 / 72.0;

struct Substitute {
  const char* name;
  const char* family;
};

constexpr Substitute kSubstitutes[] = {
    {"MS Sans Serif", "Liberation Sans"},
    {"MS Shell Dlg", "Liberation Sans"},
    {"MS Shell Dlg 2", "Liberation Sans"},
    {"Arial", "Liberation Sans"},
    {"Helv", "Liberation Sans"},
    {"Microsoft Sans Serif", "Liberation Sans"},
    {"System", "Liberation Sans"},
    {"Tahoma", "DejaVu Sans"},
    {"Verdana", "DejaVu Sans"},
    {"Small Fonts", "Liberation Sans"},
    {"Times New Roman", "Liberation Serif"},
    {"MS Serif", "Liberation Serif"},
    {"Courier New", "Liberation Mono"},
    {"Courier", "Liberation Mono"},
    {"Fixedsys", "DejaVu Sans Mono"},
    {"Terminal", "DejaVu Sans Mono"},
    {"Lucida Console", "DejaVu Sans Mono"},
};

}  // namespace

QFont ShownFont(const forms::Font& font) {
  QFont shown(ShownText(font.Name));
  shown.setPixelSize(std::max(1, static_cast<int>(std::lround(font.Size * kPixelsPerPoint))));
  shown.setBold(font.Bold);
  shown.setItalic(font.Italic);
  shown.setUnderline(font.Underline);
  shown.setStrikeOut(font.Strikethrough);
  return shown;
}

QFont MenuFont() {
  forms::Font font;
  font.Size = 9;
  return ShownFont(font);
}

int LineHeight(const QFont& font) {
  const QFontMetricsF metrics(font);
  return static_cast<int>(std::ceil(metrics.ascent()) + std::ceil(metrics.descent()));
}

void NameSubstitutes() {
  for (const auto& [name, family] : kSubstitutes) {
    if (!QFont::substitutes(name).contains(family)) QFont::insertSubstitutions(name, {family, "DejaVu Sans"});
  }
}

}  // namespace corvane::toolkit_qt
