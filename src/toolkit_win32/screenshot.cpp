#include "toolkit_win32/screenshot.h"

#include "toolkit_win32/image_codec.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

HBITMAP PictureOf(HWND window, const RECT& place) {
  const HDC shown = GetWindowDC(window), memory = CreateCompatibleDC(shown);
  const HBITMAP picture = CreateCompatibleBitmap(shown, WidthOf(place), HeightOf(place));
  const HGDIOBJ before = SelectObject(memory, picture);
  BitBlt(memory, 0, 0, WidthOf(place), HeightOf(place), shown, 0, 0, SRCCOPY);
  SelectObject(memory, before);
  DeleteDC(memory);
  ReleaseDC(window, shown);
  return picture;
}

}  // namespace

bool SaveWindowPicture(HWND window, const std::wstring& path) {
  if (!window || !IsWindowVisible(window)) return false;
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_FRAME);
  RECT place{};
  GetWindowRect(window, &place);
  const HBITMAP picture = PictureOf(window, place);
  const bool saved = ImageCodec().SavePng(picture, path);
  DeleteObject(picture);
  return saved;
}

bool SaveWindowPicture(Win32Toolkit& toolkit, const forms::Form& form, const std::wstring& path) {
  toolkit.DoEvents();
  return SaveWindowPicture(toolkit.WindowOf(form), path);
}

}  // namespace corvane::toolkit_win32
