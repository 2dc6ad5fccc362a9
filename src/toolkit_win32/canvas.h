// GdiCanvas: a picture box's surface: a bitmap in memory that keeps what was drawn, shown by its window.
#pragma once

#include <functional>
#include <string>

#include "forms/canvas.h"
#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

class Win32Toolkit;

class Win32TextMetrics : public forms::TextMetrics {
 public:
  explicit Win32TextMetrics(Win32Toolkit& toolkit) : toolkit_(toolkit) {}
  forms::Twips TextWidth(std::string_view text, const forms::Font& font) override;
  forms::Twips TextHeight(const forms::Font& font) override;

 private:
  Win32Toolkit& toolkit_;
};

class GdiCanvas : public forms::Canvas {
 public:
  // [touched]: the first stroke since the last showing: what is drawn now has to be shown later.
  GdiCanvas(Win32Toolkit& toolkit, std::function<void()> touched);
  ~GdiCanvas() override;
  GdiCanvas(const GdiCanvas&) = delete;
  GdiCanvas& operator=(const GdiCanvas&) = delete;

  // The window that shows it; null for none.
  void ShowIn(HWND window) { window_ = window; }
  // Gives the surface a size in pixels. What was drawn stays, new ground is [back]. True when it differs.
  bool Fit(SIZE size, forms::Color back);
  // What Clear leaves on the ground, at its own size.
  void SetBackground(forms::PictureRef picture) { background_ = std::move(picture); }
  // Copies the part that [place] covers.
  void ShowOn(HDC dc, const RECT& place) const;

  forms::Twips TextWidth(std::string_view text, const forms::Font& font) override;
  forms::Twips TextHeight(const forms::Font& font) override;
  void Clear(forms::Color back) override;
  void FillBox(const forms::Rect& box, forms::Color color) override;
  void FrameBox(const forms::Rect& box, forms::Color color) override;
  void Line(forms::Twips x1, forms::Twips y1, forms::Twips x2, forms::Twips y2, forms::Color color, int width) override;
  void Circle(forms::Twips x, forms::Twips y, forms::Twips radius, forms::Color outline, bool filled,
              forms::Color fill) override;
  void Text(forms::Twips x, forms::Twips y, std::string_view text, const forms::Font& font,
            forms::Color color) override;
  void PaintPicture(const forms::PictureRef& picture, const forms::Rect& place) override;
  void Refresh() override;

 private:
  int TextEdge(forms::Twips x, forms::Twips y, std::string_view text);
  void Touch(RECT changed);
  bool IsThere() const { return bitmap_ != nullptr; }
  RECT Whole() const { return {0, 0, size_.cx, size_.cy}; }

  Win32Toolkit& toolkit_;
  std::function<void()> on_touched_;
  HWND window_ = nullptr;
  HDC dc_;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ bitmap_before_, font_before_;
  SIZE size_{};
  struct Print {
    forms::Twips x = 0, y = 0;
    int edge = 0;  // pixels
    std::string text;
  } printed_;  // the last one
  RECT touched_{};
  forms::PictureRef background_;
};

}  // namespace corvane::toolkit_win32
