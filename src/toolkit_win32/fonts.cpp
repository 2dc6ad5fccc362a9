#include "toolkit_win32/fonts.h"

#include <algorithm>
#include <cmath>

#include "runtime/code_page.h"
#include "toolkit_win32/texts.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr double kPointsPerInch = 72;

// What a font's character set says, else that of the code page the logic's texts are in.
BYTE CharsetOf(const forms::Font& font) {
  if (font.Charset > DEFAULT_CHARSET) return static_cast<BYTE>(font.Charset);
  CHARSETINFO info{};
  const auto page = static_cast<DWORD_PTR>(runtime::AnsiCodePage().Number());
  const bool known = TranslateCharsetInfo(reinterpret_cast<DWORD*>(page), &info, TCI_SRCCODEPAGE);
  return static_cast<BYTE>(known ? info.ciCharset : DEFAULT_CHARSET);
}

HFONT MakeFont(const forms::Font& font, int dpi) {
  LOGFONTW wanted{};
  wanted.lfHeight = -std::max(1, static_cast<int>(std::lround(font.Size * dpi / kPointsPerInch)));
  wanted.lfWeight = font.Bold ? FW_BOLD : FW_NORMAL;
  wanted.lfItalic = font.Italic;
  wanted.lfUnderline = font.Underline;
  wanted.lfStrikeOut = font.Strikethrough;
  wanted.lfCharSet = CharsetOf(font);
  const std::wstring name = ShownText(font.Name).substr(0, LF_FACESIZE - 1);
  std::copy(name.begin(), name.end(), wanted.lfFaceName);
  return CreateFontIndirectW(&wanted);
}

}  // namespace

ShownFont::ShownFont(const forms::Font& font, int dpi)
    : font_(font), dc_(CreateCompatibleDC(nullptr)), handle_(MakeFont(font, dpi)) {
  held_before_ = SelectObject(dc_, handle_);
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc_, &metrics);
  height_ = metrics.tmHeight;
}

ShownFont::~ShownFont() {
  SelectObject(dc_, held_before_);
  DeleteDC(dc_);
  DeleteObject(handle_);
}

void ShownFont::ReadCodePage() {
  const runtime::CodePage& page = runtime::AnsiCodePage();
  if (code_page_ == page.Number()) return;
  code_page_ = page.Number();
  double_byte_ = page.IsDoubleByte();
  for (int byte = 0; byte < 256; ++byte) {
    const std::wstring shown = ShownText(std::string(1, static_cast<char>(byte)));
    of_byte_[byte] = {shown.empty() ? L'?' : shown[0]};
  }
}

int ShownFont::AdvanceOf(wchar_t character) {
  SIZE size{};
  GetTextExtentPoint32W(dc_, &character, 1, &size);
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc_, &metrics);
  return size.cx - metrics.tmOverhang;
}

// The characters of [bytes] that are drawn, and how far each moves the next. Returns the width of all.
int ShownFont::Lay(std::string_view bytes) {
  ReadCodePage();
  characters_.clear();
  steps_.clear();
  int width = 0;
  const auto add = [&](wchar_t character, int step) {
    characters_.push_back(character);
    steps_.push_back(step);
    width += step;
  };
  if (double_byte_) {
    for (wchar_t character : ShownText(bytes)) {
      if (character < L' ') continue;
      const auto [known, fresh] = advances_.try_emplace(character, 0);
      if (fresh) known->second = AdvanceOf(character);
      add(character, known->second);
    }
    return width;
  }
  for (char byte : bytes) {
    if (static_cast<unsigned char>(byte) < ' ') continue;
    Glyph& glyph = of_byte_[static_cast<unsigned char>(byte)];
    if (glyph.advance == kUnknown) glyph.advance = AdvanceOf(glyph.character);
    add(glyph.character, glyph.advance);
  }
  return width;
}

int ShownFont::Width(std::string_view bytes) {
  return Lay(bytes);
}

// What was laid out, from [x] on, as far as the surface reaches: the system takes no more than some thousand characters
// at once. A glyph may lean over its own advance.
ShownFont::Run ShownFont::SeenOn(HDC dc, int x) const {
  RECT surface{};
  GetClipBox(dc, &surface);
  const long left = surface.left - height_, right = surface.right + height_;
  Run run{0, 0, x};
  while (run.from < steps_.size() && run.x + steps_[run.from] < left) run.x += steps_[run.from++];
  size_t end = run.from;
  for (long at = run.x; end < steps_.size() && at < right; ++end) at += steps_[end];
  run.count = end - run.from;
  return run;
}

int ShownFont::Draw(HDC dc, int x, int y, std::string_view bytes, COLORREF color) {
  const int width = Lay(bytes);
  const Run seen = SeenOn(dc, x);
  if (seen.count == 0) return width;
  if (GetCurrentObject(dc, OBJ_FONT) != handle_) SelectObject(dc, handle_);
  SetTextColor(dc, color);
  SetBkMode(dc, TRANSPARENT);
  ExtTextOutW(dc, seen.x, y, 0, nullptr, &characters_[seen.from], static_cast<UINT>(seen.count), &steps_[seen.from]);
  return width;
}

ShownFont& FontStore::Of(const forms::Font& font) {
  if (last_ && last_->Font() == font) return *last_;
  const auto found =
      std::find_if(fonts_.begin(), fonts_.end(), [&](const auto& known) { return known->Font() == font; });
  last_ = found == fonts_.end() ? fonts_.emplace_back(std::make_unique<ShownFont>(font, dpi_)).get() : found->get();
  return *last_;
}

}  // namespace corvane::toolkit_win32
