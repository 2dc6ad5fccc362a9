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

void PostKey(HWND window, WORD key) {
  const LPARAM place = static_cast<LPARAM>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)) << 16;
  PostMessageW(window, WM_KEYDOWN, key, place | 1);
  PostMessageW(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001) | place);
}

void PostClick(HWND window, int x, int y) {
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
  PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

}  // namespace corvane::stage
