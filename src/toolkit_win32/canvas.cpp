#include "toolkit_win32/canvas.h"

#include <algorithm>
#include <cmath>

#include "toolkit_win32/colors.h"
#include "toolkit_win32/painted.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

// Rows from the top, 32 bits a pixel.
HBITMAP NewSurface(HDC dc, SIZE size) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = size.cx;
  info.bmiHeader.biHeight = -size.cy;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  return CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

// Selects a pen of that colour and width for as long as it lives.
class Pen {
 public:
  Pen(HDC dc, forms::Color color, int width)
      : dc_(dc), pen_(CreatePen(PS_SOLID, width, ShownColor(color))), before_(SelectObject(dc, pen_)) {}
  ~Pen() {
    SelectObject(dc_, before_);
    DeleteObject(pen_);
  }
  Pen(const Pen&) = delete;
  Pen& operator=(const Pen&) = delete;

 private:
  HDC dc_;
  HPEN pen_;
  HGDIOBJ before_;
};

}  // namespace

forms::Twips Win32TextMetrics::TextWidth(std::string_view text, const forms::Font& font) {
  return toolkit_.Scale().TwipsOf(toolkit_.Fonts().Of(font).Width(text));
}

forms::Twips Win32TextMetrics::TextHeight(const forms::Font& font) {
  return toolkit_.Scale().TwipsOf(toolkit_.Fonts().Of(font).Height());
}

GdiCanvas::GdiCanvas(Win32Toolkit& toolkit, std::function<void()> touched)
    : toolkit_(toolkit),
      on_touched_(std::move(touched)),
      dc_(CreateCompatibleDC(nullptr)),
      bitmap_before_(GetCurrentObject(dc_, OBJ_BITMAP)),
      font_before_(GetCurrentObject(dc_, OBJ_FONT)) {}

GdiCanvas::~GdiCanvas() {
  SelectObject(dc_, font_before_);
  SelectObject(dc_, bitmap_before_);
  if (bitmap_) DeleteObject(bitmap_);
  DeleteDC(dc_);
}

bool GdiCanvas::Fit(SIZE size, forms::Color back) {
  if (size.cx == size_.cx && size.cy == size_.cy) return false;
  const HBITMAP before = bitmap_;
  const SIZE size_before = size_;
  size_ = size;
  touched_ = {};
  bitmap_ = size.cx > 0 && size.cy > 0 ? NewSurface(dc_, size) : nullptr;
  SelectObject(dc_, bitmap_ ? bitmap_ : bitmap_before_);
  if (bitmap_) {
    Fill(dc_, Whole(), back);
    if (before) {
      const HDC old = CreateCompatibleDC(dc_);
      const HGDIOBJ held = SelectObject(old, before);
      BitBlt(dc_, 0, 0, size_before.cx, size_before.cy, old, 0, 0, SRCCOPY);
      SelectObject(old, held);
      DeleteDC(old);
    }
  }
  if (before) DeleteObject(before);
  return true;
}

void GdiCanvas::ShowOn(HDC dc, const RECT& place) const {
  if (!IsThere()) return;
  BitBlt(dc, place.left, place.top, WidthOf(place), HeightOf(place), dc_, place.left, place.top, SRCCOPY);
}

// The first stroke since the last showing asks for the next one, so that nothing drawn stays unseen.
void GdiCanvas::Touch(RECT changed) {
  const RECT whole = Whole();
  RECT inside;
  if (!IntersectRect(&inside, &changed, &whole)) return;
  const bool first = IsRectEmpty(&touched_) != FALSE;
  const RECT before = touched_;
  UnionRect(&touched_, &before, &inside);
  if (first && on_touched_) on_touched_();
}

forms::Twips GdiCanvas::TextWidth(std::string_view text, const forms::Font& font) {
  return toolkit_.Metrics().TextWidth(text, font);
}

forms::Twips GdiCanvas::TextHeight(const forms::Font& font) {
  return toolkit_.Metrics().TextHeight(font);
}

void GdiCanvas::Clear(forms::Color back) {
  if (!IsThere()) return;
  Fill(dc_, Whole(), back);
  const SIZE size = toolkit_.Pictures().SizeOf(background_);
  const PixelScale& scale = toolkit_.Scale();
  if (size.cx > 0) toolkit_.Pictures().Draw(dc_, {0, 0, scale.Scaled(size.cx), scale.Scaled(size.cy)}, background_);
  Touch(Whole());
}

void GdiCanvas::FillBox(const forms::Rect& box, forms::Color color) {
  if (!IsThere()) return;
  const RECT place = toolkit_.Scale().PixelsOf(box);
  Fill(dc_, place, color);
  Touch(place);
}

void GdiCanvas::FrameBox(const forms::Rect& box, forms::Color color) {
  if (!IsThere()) return;
  const RECT place = toolkit_.Scale().PixelsOf(box);
  const int line = toolkit_.Scale().Scaled(1);
  Fill(dc_, {place.left, place.top, place.right, place.top + line}, color);
  Fill(dc_, {place.left, place.bottom - line, place.right, place.bottom}, color);
  Fill(dc_, {place.left, place.top, place.left + line, place.bottom}, color);
  Fill(dc_, {place.right - line, place.top, place.right, place.bottom}, color);
  Touch(place);
}

// Upright and level lines are boxes of whole pixels, and end before their last point.
void GdiCanvas::Line(forms::Twips x1, forms::Twips y1, forms::Twips x2, forms::Twips y2, forms::Color color,
                     int width) {
  if (!IsThere()) return;
  const PixelScale& scale = toolkit_.Scale();
  const int thick = std::max(1, scale.Scaled(width));
  const POINT from{scale.Pixels(x1), scale.Pixels(y1)}, to{scale.Pixels(x2), scale.Pixels(y2)};
  RECT box{std::min(from.x, to.x), std::min(from.y, to.y), std::max(from.x, to.x), std::max(from.y, to.y)};
  if (from.x == to.x || from.y == to.y) {
    const bool upright = from.x == to.x;
    if (upright) {
      box = {box.left, box.top - thick / 2, box.left + thick, std::max(box.bottom, box.top + thick) - thick / 2};
    } else {
      box = {box.left - thick / 2, box.top, std::max(box.right, box.left + thick) - thick / 2, box.top + thick};
    }
    Fill(dc_, box, color);
    return Touch(box);
  }
  const Pen pen(dc_, color, thick);
  MoveToEx(dc_, from.x, from.y, nullptr);
  LineTo(dc_, to.x, to.y);
  InflateRect(&box, thick + 1, thick + 1);
  Touch(box);
}

void GdiCanvas::Circle(forms::Twips x, forms::Twips y, forms::Twips radius, forms::Color outline, bool filled,
                       forms::Color fill) {
  if (!IsThere()) return;
  const PixelScale& scale = toolkit_.Scale();
  const RECT box{scale.Pixels(x - radius), scale.Pixels(y - radius), scale.Pixels(x + radius) + 1,
                 scale.Pixels(y + radius) + 1};
  const Pen pen(dc_, outline, scale.Scaled(1));
  const HGDIOBJ brush = filled ? BrushOf(dc_, fill) : GetStockObject(NULL_BRUSH);
  const HGDIOBJ before = SelectObject(dc_, brush);
  Ellipse(dc_, box.left, box.top, box.right, box.bottom);
  SelectObject(dc_, before);
  Touch(box);
}

// Bold is the same text printed twice, half a pixel apart. At some resolutions both would fall on one pixel here and
// not there: the second print then stands beside the first.
int GdiCanvas::TextEdge(forms::Twips x, forms::Twips y, std::string_view text) {
  int edge = toolkit_.Scale().Pixels(x);
  const forms::Twips step = x - printed_.x;
  const bool again = y == printed_.y && std::abs(step) < forms::kTwipsPerPixel && text == printed_.text;
  if (again && step != 0 && edge == printed_.edge) edge += step > 0 ? 1 : -1;
  printed_.x = x;
  printed_.y = y;
  printed_.edge = edge;
  printed_.text.assign(text);
  return edge;
}

void GdiCanvas::Text(forms::Twips x, forms::Twips y, std::string_view text, const forms::Font& font,
                     forms::Color color) {
  if (!IsThere() || text.empty()) return;
  const POINT place{TextEdge(x, y, text), toolkit_.Scale().Pixels(y)};
  if (place.x >= size_.cx || place.y >= size_.cy) return;
  ShownFont& shown = toolkit_.Fonts().Of(font);
  const int width = shown.Draw(dc_, place.x, place.y, text, ShownColor(color));
  // A glyph may lean over its own advance.
  const int margin = shown.Height();
  Touch({place.x - margin, place.y, place.x + width + margin, place.y + shown.Height() + 1});
}

void GdiCanvas::PaintPicture(const forms::PictureRef& picture, const forms::Rect& place) {
  if (!IsThere()) return;
  const RECT box = toolkit_.Scale().PixelsOf(place);
  toolkit_.Pictures().Draw(dc_, box, picture);
  Touch(box);
}

void GdiCanvas::Refresh() {
  if (IsRectEmpty(&touched_)) return;
  const RECT changed = touched_;
  touched_ = {};
  if (!window_) return;
  RepaintWithClear(window_, &changed);
  UpdateWindow(window_);
}

}  // namespace corvane::toolkit_win32
