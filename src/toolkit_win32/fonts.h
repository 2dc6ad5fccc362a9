// Fonts of the logic as GDI has them at one resolution of the display. Advances are whole pixels and there is no
// kerning, so widths add up: a text drawn in pieces stands where it stands when drawn whole, and what is measured is
// what is drawn.
#pragma once

#include <array>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "forms/types.h"
#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

class ShownFont {
 public:
  ShownFont(const forms::Font& font, int dpi);
  ~ShownFont();
  ShownFont(const ShownFont&) = delete;
  ShownFont& operator=(const ShownFont&) = delete;

  const forms::Font& Font() const { return font_; }
  HFONT Handle() const { return handle_; }
  // Pixels. Control characters have no width and draw nothing.
  int Width(std::string_view bytes);
  int Height() const { return height_; }  // of a line
  // The top left corner of the text stands at x, y; the background stays. [dc] keeps this font. Returns the width.
  int Draw(HDC dc, int x, int y, std::string_view bytes, COLORREF color);

 private:
  struct Glyph {
    wchar_t character = 0;
    int advance = kUnknown;
  };
  static constexpr int kUnknown = -1;
  void ReadCodePage();
  int AdvanceOf(wchar_t character);
  int Lay(std::string_view bytes);
  struct Run {
    size_t from = 0, count = 0;
    int x = 0;
  };
  Run SeenOn(HDC dc, int x) const;

  forms::Font font_;
  HDC dc_;  // to measure with; holds the font
  HFONT handle_;
  HGDIOBJ held_before_;
  int height_ = 0, code_page_ = 0;
  bool double_byte_ = false;
  std::array<Glyph, 256> of_byte_;
  std::unordered_map<wchar_t, int> advances_;  // of the double-byte code pages
  std::vector<wchar_t> characters_;            // of the text laid out last
  std::vector<int> steps_;
};

// Kept from call to call; freed with the store.
class FontStore {
 public:
  explicit FontStore(int dpi) : dpi_(dpi) {}
  ShownFont& Of(const forms::Font& font);
  HFONT HandleOf(const forms::Font& font) { return Of(font).Handle(); }

 private:
  int dpi_;
  std::vector<std::unique_ptr<ShownFont>> fonts_;
  ShownFont* last_ = nullptr;
};

}  // namespace corvane::toolkit_win32
