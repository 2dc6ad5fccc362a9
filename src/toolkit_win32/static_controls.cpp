// Label, Frame, Image, Line, Shape: they paint themselves from their control.
#include "forms/static_controls.h"

#include <algorithm>

#include "toolkit_win32/colors.h"
#include "toolkit_win32/painted.h"
#include "toolkit_win32/peers.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/theme.h"
#include "toolkit_win32/toolkit.h"
// Needs the Windows API in front of it.
#include <vssym32.h>

namespace corvane::toolkit_win32 {
namespace {

UINT FlagsOf(forms::Alignment alignment) {
  switch (alignment) {
    case forms::Alignment::Right:
      return DT_RIGHT;
    case forms::Alignment::Center:
      return DT_CENTER;
    default:
      return DT_LEFT;
  }
}

// A pen or brush of [dc] while it lives.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), object_(object), before_(SelectObject(dc, object)) {}
  ~Selected() {
    SelectObject(dc_, before_);
    DeleteObject(object_);
  }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC dc_;
  HGDIOBJ object_, before_;
};

// A painted control with a caption: the window has its text too, for those who do not see it.
template <class Kind>
class CaptionedPeer : public PaintedPeer {
 public:
  CaptionedPeer(Win32Toolkit& toolkit, Kind& control) : PaintedPeer(toolkit, control), shown_(control) {
    CreatePainted(Mouse::ActsLast);
  }

 protected:
  void ShowOwn(forms::Property property) override {
    window_.SetText(ShownText(shown_.Caption()));
    PaintedPeer::ShowOwn(property);
  }

  void PaintText(HDC dc, RECT place, UINT flags) {
    const std::wstring text = ShownText(shown_.Caption());
    const HGDIOBJ before = SelectObject(dc, toolkit_.Fonts().HandleOf(shown_.Font()));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, ShownColor(shown_.Enabled() ? shown_.ForeColor() : static_cast<forms::Color>(forms::kGrayText)));
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &place, flags);
    SelectObject(dc, before);
  }

  Kind& shown_;
};

class LabelPeer : public CaptionedPeer<forms::Label> {
 public:
  using CaptionedPeer::CaptionedPeer;

 protected:
  bool HasGround() const override { return shown_.BackStyle() == 1; }

  void Paint(HDC dc, const RECT& place) override {
    if (HasGround()) Fill(dc, place, shown_.BackColor());
    RECT text = place;
    if (shown_.BorderStyle() == 1) {
      PaintSunkenFrame(dc, place, toolkit_.Scale());
      text = InsideBorder(place, toolkit_.Scale().Scaled(kBorder));
    }
    UINT flags = DT_TOP | DT_EXPANDTABS | FlagsOf(shown_.Alignment());
    if (!shown_.UseMnemonic()) flags |= DT_NOPREFIX;
    if (shown_.Wraps()) flags |= DT_WORDBREAK;
    PaintText(dc, text, flags);
  }
};

class FramePeer : public CaptionedPeer<forms::Frame> {
 public:
  using CaptionedPeer::CaptionedPeer;

 protected:
  bool HasGround() const override { return true; }

  // The frame runs through the middle of its caption.
  void Paint(HDC dc, const RECT& place) override {
    Fill(dc, place, shown_.BackColor());
    if (shown_.BorderStyle() == 0) return;
    const PixelScale& scale = toolkit_.Scale();
    ShownFont& font = toolkit_.Fonts().Of(shown_.Font());
    PaintBox(dc, {place.left, place.top + font.Height() / 2, place.right, place.bottom});
    if (shown_.Caption().empty()) return;
    const int left = place.left + scale.Scaled(8), gap = scale.Scaled(3);
    const RECT text{left, place.top, left + CaptionWidth(dc), place.top + font.Height()};
    Fill(dc, {text.left - gap, text.top, text.right + gap, text.bottom}, shown_.BackColor());
    PaintText(dc, text, DT_SINGLELINE | DT_LEFT | DT_TOP);
  }

 private:
  void PaintBox(HDC dc, RECT box) {
    const Theme theme(toolkit_, Handle(), L"BUTTON");
    if (theme) return theme.Draw(dc, BP_GROUPBOX, shown_.Enabled() ? GBS_NORMAL : GBS_DISABLED, box);
    DrawEdge(dc, &box, EDGE_ETCHED, BF_RECT);
  }

  int CaptionWidth(HDC dc) {
    RECT text{};
    const std::wstring caption = ShownText(shown_.Caption());
    const HGDIOBJ before = SelectObject(dc, toolkit_.Fonts().HandleOf(shown_.Font()));
    DrawTextW(dc, caption.c_str(), static_cast<int>(caption.size()), &text, DT_CALCRECT | DT_SINGLELINE);
    SelectObject(dc, before);
    return WidthOf(text);
  }
};

class ImagePeer : public PaintedPeer {
 public:
  ImagePeer(Win32Toolkit& toolkit, forms::Image& image) : PaintedPeer(toolkit, image), image_(image) {
    CreatePainted(Mouse::ActsLast);
  }

 protected:
  void Paint(HDC dc, const RECT& place) override {
    const PixelScale& scale = toolkit_.Scale();
    RECT shown = place;
    if (image_.BorderStyle() == 1) {
      PaintSunkenFrame(dc, place, scale);
      shown = InsideBorder(place, scale.Scaled(kBorder));
    }
    if (!image_.Stretch()) {
      const SIZE size = toolkit_.Pictures().SizeOf(image_.Picture());
      shown.right = shown.left + scale.Scaled(size.cx);
      shown.bottom = shown.top + scale.Scaled(size.cy);
    }
    toolkit_.Pictures().Draw(dc, shown, image_.Picture());
  }

 private:
  const forms::Image& image_;
};

// Lies behind the controls that are windows of Visual Basic's own, the last one made in front of those before it, and
// takes no mouse.
class DrawnPeer : public PaintedPeer {
 public:
  DrawnPeer(Win32Toolkit& toolkit, forms::Control& control) : PaintedPeer(toolkit, control) {
    CreatePainted(Mouse::Untold, false);
  }
  void BringToFront(bool front) override {
    const HWND above = front ? JustAboveTheDrawn() : HWND_BOTTOM;
    SetWindowPos(Handle(), above, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    Repaint();
  }

 private:
  HWND JustAboveTheDrawn() const {
    for (HWND each = GetWindow(Handle(), GW_HWNDFIRST); each; each = GetWindow(each, GW_HWNDNEXT)) {
      if (each == Handle()) continue;
      const forms::Control* shown = ControlShownBy(each);
      const bool drawn =
          shown && (shown->Kind() == forms::ControlKind::Line || shown->Kind() == forms::ControlKind::Shape);
      if (!drawn) continue;
      HWND above = GetWindow(each, GW_HWNDPREV);
      if (above == Handle()) above = GetWindow(above, GW_HWNDPREV);
      return above ? above : HWND_TOP;
    }
    return HWND_BOTTOM;
  }
};

class LinePeer : public DrawnPeer {
 public:
  LinePeer(Win32Toolkit& toolkit, forms::Line& line) : DrawnPeer(toolkit, line), line_(line) {}

 protected:
  RECT ShownPlace() const override {
    const PixelScale& scale = toolkit_.Scale();
    const int width = Width();
    const auto [left, right] = std::minmax({scale.Pixels(line_.X1()), scale.Pixels(line_.X2())});
    const auto [top, bottom] = std::minmax({scale.Pixels(line_.Y1()), scale.Pixels(line_.Y2())});
    return {left, top, std::max(right, left + width), std::max(bottom, top + width)};
  }
  void ShowOwn(forms::Property property) override {
    ShowPlace();
    DrawnPeer::ShowOwn(property);
  }

  void Paint(HDC dc, const RECT& place) override {
    const int width = Width(), inside = width / 2;
    if (WidthOf(place) == width || HeightOf(place) == width) return Fill(dc, place, line_.BorderColor());
    const bool rises = line_.Rises();
    const int right = place.right - 1 - inside, bottom = place.bottom - 1 - inside;
    const Selected pen(dc, CreatePen(PS_SOLID, width, ShownColor(line_.BorderColor())));
    MoveToEx(dc, place.left + inside, rises ? bottom : place.top + inside, nullptr);
    LineTo(dc, right, rises ? place.top + inside : bottom);
  }

 private:
  int Width() const { return toolkit_.Scale().Scaled(std::max(1, line_.BorderWidth())); }
  const forms::Line& line_;
};

RECT Squared(const RECT& box) {
  const int side = std::min(WidthOf(box), HeightOf(box));
  const int left = box.left + (WidthOf(box) - side) / 2, top = box.top + (HeightOf(box) - side) / 2;
  return {left, top, left + side, top + side};
}

class ShapePeer : public DrawnPeer {
 public:
  ShapePeer(Win32Toolkit& toolkit, forms::Shape& shape) : DrawnPeer(toolkit, shape), shape_(shape) {}

 protected:
  void Paint(HDC dc, const RECT& place) override {
    using forms::ShapeKind;
    const ShapeKind kind = shape_.ShapeOf();
    const RECT box = shape_.IsSquare() ? Squared(place) : place;
    const Selected pen(dc, NewPen()), brush(dc, NewBrush());
    const int corner = std::min(WidthOf(box), HeightOf(box)) / 3;
    // Without a border the edge is the fill's, a pixel further out.
    const int more = shape_.BorderStyle() == 0 ? 1 : 0;
    switch (kind) {
      case ShapeKind::Oval:
      case ShapeKind::Circle:
        Ellipse(dc, box.left, box.top, box.right + more, box.bottom + more);
        break;
      case ShapeKind::RoundedRectangle:
      case ShapeKind::RoundedSquare:
        RoundRect(dc, box.left, box.top, box.right + more, box.bottom + more, corner, corner);
        break;
      default:
        Rectangle(dc, box.left, box.top, box.right + more, box.bottom + more);
        break;
    }
  }

 private:
  HGDIOBJ NewPen() const {
    if (shape_.BorderStyle() == 0) return GetStockObject(NULL_PEN);
    const int width = toolkit_.Scale().Scaled(std::max(1, shape_.BorderWidth()));
    return CreatePen(PS_INSIDEFRAME, width, ShownColor(shape_.BorderColor()));
  }
  HGDIOBJ NewBrush() const {
    const std::optional<forms::Color> fill = shape_.ShownFill();
    return fill ? CreateSolidBrush(ShownColor(*fill)) : GetStockObject(NULL_BRUSH);
  }
  const forms::Shape& shape_;
};

}  // namespace

NewPeer NewLabelPeer(Win32Toolkit& toolkit, forms::Label& label) {
  return std::make_unique<LabelPeer>(toolkit, label);
}

NewPeer NewFramePeer(Win32Toolkit& toolkit, forms::Frame& frame) {
  return std::make_unique<FramePeer>(toolkit, frame);
}

NewPeer NewImagePeer(Win32Toolkit& toolkit, forms::Image& image) {
  return std::make_unique<ImagePeer>(toolkit, image);
}
NewPeer NewLinePeer(Win32Toolkit& toolkit, forms::Line& line) {
  return std::make_unique<LinePeer>(toolkit, line);
}
NewPeer NewShapePeer(Win32Toolkit& toolkit, forms::Shape& shape) {
  return std::make_unique<ShapePeer>(toolkit, shape);
}

}  // namespace corvane::toolkit_win32
