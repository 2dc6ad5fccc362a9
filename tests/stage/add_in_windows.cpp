#include "tests/stage/add_in_windows.h"

#include <algorithm>
#include <cctype>
#include <functional>

#include "tests/stage/texts.h"

namespace corvane::stage {

namespace {

using Visit = std::function<void(HWND)>;

BOOL CALLBACK CallVisit(HWND window, LPARAM visit) {
  (*reinterpret_cast<Visit*>(visit))(window);
  return TRUE;
}

std::string Lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
  return text;
}

}  // namespace

std::string CaptionOf(HWND window) {
  std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return Ansi(text);
}

std::string ClassOf(HWND window) {
  wchar_t name[256];
  return Ansi({name, static_cast<size_t>(GetClassNameW(window, name, 256))});
}

std::vector<HWND> ShownWindows(HWND environment) {
  std::vector<HWND> shown;
  Visit visit = [&](HWND window) {
    if (window != environment && IsWindowVisible(window)) shown.push_back(window);
  };
  EnumThreadWindows(GetCurrentThreadId(), &CallVisit, reinterpret_cast<LPARAM>(&visit));
  return shown;
}

HWND FindShown(const std::string& caption) {
  for (HWND window : ShownWindows(nullptr))
    if (CaptionOf(window).rfind(caption, 0) == 0) return window;
  return nullptr;
}

HWND FindShownOfClass(const std::string& name) {
  for (HWND window : ShownWindows(nullptr))
    if (ClassOf(window) == name) return window;
  return nullptr;
}

std::vector<HWND> Below(HWND window, const std::string& part) {
  std::vector<HWND> found;
  Visit visit = [&](HWND child) {
    if (Lower(ClassOf(child)).find(Lower(part)) != std::string::npos) found.push_back(child);
  };
  EnumChildWindows(window, &CallVisit, reinterpret_cast<LPARAM>(&visit));
  return found;
}

HWND ControlAt(HWND form, int left, int top) {
  POINT origin{0, 0};
  ClientToScreen(form, &origin);
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  HWND found = nullptr;
  Visit visit = [&](HWND child) {
    RECT place;
    GetWindowRect(child, &place);
    const bool here = place.left - origin.x == left * dpi / 1440 && place.top - origin.y == top * dpi / 1440;
    if (here && IsWindowVisible(child) && found == nullptr) found = child;
  };
  EnumChildWindows(form, &CallVisit, reinterpret_cast<LPARAM>(&visit));
  return found;
}

std::vector<std::string> RowsOf(HWND list) {
  const bool combo = Lower(ClassOf(list)).find("combobox") != std::string::npos;
  std::vector<std::string> rows;
  if (combo) SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
  const auto count = SendMessageW(list, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
  for (WPARAM row = 0; static_cast<LRESULT>(row) < count; ++row) {
    const auto length = SendMessageW(list, combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, row, 0);
    std::wstring text(static_cast<size_t>(std::max<LRESULT>(length, 0)) + 1, L'\0');
    SendMessageW(list, combo ? CB_GETLBTEXT : LB_GETTEXT, row, reinterpret_cast<LPARAM>(text.data()));
    rows.push_back(Ansi(text.c_str()));
  }
  if (combo) SendMessageW(list, CB_SHOWDROPDOWN, FALSE, 0);
  return rows;
}

Held::Held(Modifiers keys) {
  GetKeyboardState(before_);
  BYTE now[256];
  std::copy(before_, before_ + 256, now);
  for (const auto& [held, key] : {std::pair(keys.shift, VK_SHIFT), {keys.ctrl, VK_CONTROL}, {keys.alt, VK_MENU}})
    if (held) now[key] |= 0x80;
  SetKeyboardState(now);
}

void PostKey(HWND window, WORD key, Modifiers with) {
  const bool system = with.alt && !with.ctrl;
  const LPARAM place =
      (static_cast<LPARAM>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)) << 16) | (system ? LPARAM{1} << 29 : 0);
  PostMessageW(window, system ? WM_SYSKEYDOWN : WM_KEYDOWN, key, place | 1);
  PostMessageW(window, system ? WM_SYSKEYUP : WM_KEYUP, key, static_cast<LPARAM>(0xC0000001) | place);
}

void PostClick(HWND window, int x, int y) {
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
  PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

void PostDoubleClick(HWND window, int x, int y) {
  PostClick(window, x, y);
  PostMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(x, y));
  PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

void PostClick(HWND window) {
  RECT area;
  GetClientRect(window, &area);
  POINT place{area.right / 2, area.bottom / 2};
  for (HWND below; (below = ChildWindowFromPointEx(window, place, CWP_SKIPINVISIBLE)) != nullptr && below != window;
       window = below)
    MapWindowPoints(window, below, &place, 1);
  PostClick(window, place.x, place.y);
}

}  // namespace corvane::stage
