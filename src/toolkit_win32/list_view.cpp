#include "toolkit_win32/list_view.h"

#include <algorithm>
#include <utility>

#include "toolkit_win32/colors.h"
#include "toolkit_win32/keys.h"
#include "toolkit_win32/painted.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/theme.h"
#include "toolkit_win32/toolkit.h"
// Needs the Windows API in front of it.
#include <vssym32.h>

namespace corvane::toolkit_win32 {
namespace {

constexpr int kIndent = 2, kBox = 13;  // pixels at 96 dots to the inch
constexpr size_t kShownBytes = 1024;   // of a row: more never fits a screen

POINT PlaceOf(const Message& message) {
  return {GET_X_LPARAM(message.l), GET_Y_LPARAM(message.l)};
}

}  // namespace

int ListView::RowHeight() const {
  const int text = toolkit_.Fonts().Of(list_->Font()).Height();
  return Boxes ? std::max(text, toolkit_.Scale().Scaled(kBox + 2)) : text;
}

int ListView::BoxWidth() const {
  return Boxes ? toolkit_.Scale().Scaled(kBox + 2 * kIndent) : 0;
}

long ListView::RowsInView() const {
  return std::max(1, HeightOf(window_.Client()) / RowHeight());
}

long ListView::RowAt(POINT place) const {
  const RECT rows = window_.Client();
  if (place.y < rows.top || place.y >= rows.bottom) return -1;
  const long row = TopRow() + place.y / RowHeight();
  return row < std::min(Count(), TopRow() + RowsInView()) ? row : -1;
}

RECT ListView::PlaceOfRow(long row) const {
  const int top = static_cast<int>(row - TopRow()) * RowHeight();
  return {0, top, window_.Client().right, top + RowHeight()};
}

void ListView::RowsChanged(Life life) {
  if (stale_) return;
  stale_ = true;
  toolkit_.Post(std::move(life), [this] { FitScrollBar(); });
}

// A bar that comes or goes leaves less or more room for the rows: it hides itself where all fit.
void ListView::FitScrollBar() {
  stale_ = false;
  KeepInRange();
  Repaint();
  const BarState wanted{std::max(0L, Count() - 1), RowsInView(), TopRow()};
  if (bar_ == wanted) return;
  bar_ = wanted;
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
  info.nMax = static_cast<int>(wanted.last);
  info.nPage = static_cast<UINT>(wanted.page);
  info.nPos = static_cast<int>(wanted.top);
  SetScrollInfo(window_.Handle(), SB_VERT, &info, TRUE);
}

void ListView::PaintRows() {
  if (stale_) FitScrollBar();
  PAINTSTRUCT paint{};
  const HDC target = BeginPaint(window_.Handle(), &paint);
  if (target && !IsRectEmpty(&paint.rcPaint)) {
    const BufferedPaint buffer(target, paint.rcPaint);
    Fill(buffer.Dc(), paint.rcPaint, list_->BackColor());
    // Whole rows only.
    const long end = std::min(Count(), TopRow() + RowsInView());
    for (long row = TopRow() + paint.rcPaint.top / RowHeight(); row < end; ++row) {
      const RECT place = PlaceOfRow(row);
      if (place.top >= paint.rcPaint.bottom) break;
      PaintRow(buffer.Dc(), row, place);
    }
  }
  EndPaint(window_.Handle(), &paint);
}

void ListView::PaintRow(HDC dc, long row, const RECT& place) const {
  const bool selected = IsShownSelected(row), active = list_->Enabled();
  const RECT text{place.left + BoxWidth(), place.top, place.right, place.bottom};
  if (selected && active) Fill(dc, text, forms::kHighlight);
  if (Boxes) PaintBox(dc, place, IsMarked(row));
  forms::Color color = active ? list_->ForeColor() : static_cast<forms::Color>(forms::kGrayText);
  if (selected && active) color = forms::kHighlightText;
  ShownFont& font = toolkit_.Fonts().Of(list_->Font());
  const std::string_view bytes = list_->Rows().At(row).text;
  font.Draw(dc, text.left + toolkit_.Scale().Scaled(kIndent), text.top + (HeightOf(text) - font.Height()) / 2,
            bytes.substr(0, kShownBytes), ShownColor(color));
  if (Many() && row == list_->ListIndex() && GetFocus() == window_.Handle()) DrawFocusRect(dc, &text);
}

void ListView::PaintBox(HDC dc, const RECT& place, bool ticked) const {
  const int size = toolkit_.Scale().Scaled(kBox), left = place.left + toolkit_.Scale().Scaled(kIndent);
  const int top = place.top + (HeightOf(place) - size) / 2;
  RECT box{left, top, left + size, top + size};
  const Theme theme(toolkit_, window_.Handle(), L"BUTTON");
  const bool active = list_->Enabled();
  if (theme) {
    const int on = active ? CBS_CHECKEDNORMAL : CBS_CHECKEDDISABLED;
    return theme.Draw(dc, BP_CHECKBOX, ticked ? on : active ? CBS_UNCHECKEDNORMAL : CBS_UNCHECKEDDISABLED, box);
  }
  const UINT look = DFCS_BUTTONCHECK | DFCS_FLAT | (ticked ? DFCS_CHECKED : 0);
  DrawFrameControl(dc, &box, DFC_BUTTON, look | (active ? 0 : DFCS_INACTIVE));
}

// The frame of a text box with visual styles; the system gives a plain window the older one.
void ListView::PaintFrame() const {
  const Theme theme(toolkit_, window_.Handle(), L"EDIT");
  if (!theme) return;
  const HDC dc = GetWindowDC(window_.Handle());
  RECT frame{};
  GetWindowRect(window_.Handle(), &frame);
  OffsetRect(&frame, -frame.left, -frame.top);
  const RECT inside = InsideBorder(frame, GetSystemMetrics(SM_CXEDGE));
  ExcludeClipRect(dc, inside.left, inside.top, inside.right, inside.bottom);
  theme.Draw(dc, EP_EDITTEXT, list_->Enabled() ? ETS_NORMAL : ETS_DISABLED, frame);
  ReleaseDC(window_.Handle(), dc);
}

void ListView::Scroll(int how) {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_TRACKPOS;
  switch (how) {
    case SB_LINEUP:
      return ScrollByUser(TopRow() - 1);
    case SB_LINEDOWN:
      return ScrollByUser(TopRow() + 1);
    case SB_PAGEUP:
      return ScrollByUser(TopRow() - RowsInView());
    case SB_PAGEDOWN:
      return ScrollByUser(TopRow() + RowsInView());
    case SB_TOP:
      return ScrollByUser(0);
    case SB_BOTTOM:
      return ScrollByUser(Count());
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:  // 32 bits of it: the message holds 16
      if (GetScrollInfo(window_.Handle(), SB_VERT, &info)) ScrollByUser(info.nTrackPos);
      return;
    default:
      return;
  }
}

void ListView::Wheel(int turn) {
  UINT lines = 3;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  turned_ += turn;
  const int notches = turned_ / WHEEL_DELTA;
  turned_ -= notches * WHEEL_DELTA;
  const long step = lines == WHEEL_PAGESCROLL ? RowsInView() : static_cast<long>(lines);
  if (notches != 0) ScrollByUser(TopRow() - notches * step);
}

// As the system's own list box answers, for those who ask windows what they show.
std::optional<LRESULT> ListView::Answer(const Message& message) const {
  const long row = static_cast<long>(message.w);
  const bool is_row = row >= 0 && row < Count();
  switch (message.id) {
    case LB_GETCOUNT:
      return Count();
    case LB_GETCURSEL:
      return list_->ListIndex() < 0 ? LB_ERR : list_->ListIndex();
    case LB_GETTOPINDEX:
      return TopRow();
    case LB_GETITEMHEIGHT:
      return RowHeight();
    case LB_GETSEL:
      return is_row ? IsShownSelected(row) : LB_ERR;
    case LB_GETITEMRECT:
      if (!is_row) return LB_ERR;
      *reinterpret_cast<RECT*>(message.l) = PlaceOfRow(row);
      return TRUE;
    case LB_GETTEXTLEN:
      return is_row ? static_cast<LRESULT>(ShownText(list_->List(row)).size()) : LB_ERR;
    case LB_GETTEXT: {
      if (!is_row) return LB_ERR;
      const std::wstring text = ShownText(list_->List(row));
      std::copy_n(text.c_str(), text.size() + 1, reinterpret_cast<wchar_t*>(message.l));
      return static_cast<LRESULT>(text.size());
    }
    default:
      return std::nullopt;
  }
}

LRESULT ListView::OnMessage(const Message& message) {
  if (const std::optional<LRESULT> answer = Answer(message)) return *answer;
  switch (message.id) {
    case WM_PAINT:
      PaintRows();
      return 0;
    case WM_NCPAINT:
      window_.Default(message);
      PaintFrame();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_SIZE:
      FitScrollBar();
      return 0;
    case WM_SETFONT:
      FitScrollBar();
      break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE:
      Repaint();
      break;
    case WM_VSCROLL:
      Scroll(LOWORD(message.w));
      return 0;
    case WM_MOUSEWHEEL:
      Wheel(GET_WHEEL_DELTA_WPARAM(message.w));
      return 0;
    case WM_LBUTTONDOWN:
      Press(RowAt(PlaceOf(message)));
      return 0;
    case WM_LBUTTONDBLCLK:  // the second of two quick clicks chooses nothing, but it ticks
      if (ToggleOnClick || IsOnBox(PlaceOf(message))) Press(RowAt(PlaceOf(message)));
      return 0;
    case WM_MOUSEMOVE:
      if (message.w & MK_LBUTTON) DragTo(RowAt(PlaceOf(message)));
      return 0;
    case WM_LBUTTONUP:
      Release(IsOnBox(PlaceOf(message)), ShiftNow());
      return 0;
    case WM_CAPTURECHANGED:  // another window took the mouse: nothing is chosen
      if (reinterpret_cast<HWND>(message.l) != window_.Handle()) LoseMouse();
      break;
    case WM_KEYDOWN:
      if (KeyDown(static_cast<int>(message.w), ShiftNow())) return 0;
      break;
    case WM_CHAR:
      if (Typed(BytesOf(std::wstring(1, static_cast<wchar_t>(message.w))), ShiftNow())) return 0;
      break;
    default:
      break;
  }
  return window_.Default(message);
}

}  // namespace corvane::toolkit_win32
