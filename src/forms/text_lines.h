// Sizes of texts of several lines.
#pragma once

#include <algorithm>
#include <string_view>

#include "forms/canvas.h"

namespace corvane::forms {

// Calls [visit] with each line of [text]; lines end at CR LF, CR or LF. A text without a line end is one line.
template <class Visit>
void ForEachLine(std::string_view text, Visit&& visit) {
  while (true) {
    const size_t end = text.find_first_of("\r\n");
    visit(text.substr(0, end));
    if (end == std::string_view::npos) return;
    text.remove_prefix(end + (text.substr(end, 2) == "\r\n" ? 2 : 1));
  }
}

inline Twips WidestLine(TextMetrics& metrics, std::string_view text, const Font& font) {
  Twips widest = 0;
  ForEachLine(text, [&](std::string_view line) { widest = std::max(widest, metrics.TextWidth(line, font)); });
  return widest;
}

inline Twips HeightOfLines(TextMetrics& metrics, std::string_view text, const Font& font) {
  int lines = 0;
  ForEachLine(text, [&](std::string_view) { ++lines; });
  return static_cast<Twips>(lines) * metrics.TextHeight(font);
}

// Lines that [line] takes when it is broken at blanks to fit [width].
inline int WrappedLines(TextMetrics& metrics, std::string_view line, const Font& font, Twips width) {
  int lines = 1;
  size_t start = 0, fits = 0;
  while (true) {
    const size_t blank = line.find(' ', fits + 1);
    const size_t end = blank == std::string_view::npos ? line.size() : blank;
    if (metrics.TextWidth(line.substr(start, end - start), font) > width && fits > start) {
      ++lines;
      start = fits + 1;
    }
    if (end == line.size()) return lines;
    fits = end;
  }
}

// Height of [text] with its lines broken at blanks to fit [width].
inline Twips WrappedHeight(TextMetrics& metrics, std::string_view text, const Font& font, Twips width) {
  int lines = 0;
  ForEachLine(text, [&](std::string_view line) { lines += WrappedLines(metrics, line, font, width); });
  return static_cast<Twips>(lines) * metrics.TextHeight(font);
}

}  // namespace corvane::forms
