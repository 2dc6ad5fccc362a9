// What the user does to a menu that is open, from inside its own loop.
#pragma once

#include <string>

#include "tests/toolkit_win32/hand.h"

namespace corvane::toolkit_win32 {

inline std::wstring PlainTitle(std::wstring title) {
  std::erase(title, L'&');
  return title.substr(0, title.find(L'\t'));
}

inline std::wstring TitleOf(HMENU menu, int place) {
  wchar_t text[256];
  return {text, static_cast<size_t>(GetMenuStringW(menu, static_cast<UINT>(place), text, 256, MF_BYPOSITION))};
}

// The place of the item of that caption; -1 if there is none.
inline int PlaceIn(HMENU menu, const std::wstring& caption) {
  for (int place = 0; place < GetMenuItemCount(menu); ++place) {
    if (PlainTitle(TitleOf(menu, place)) == caption) return place;
  }
  return -1;
}

inline GUITHREADINFO ThreadState() {
  GUITHREADINFO state{};
  state.cbSize = sizeof state;
  GetGUIThreadInfo(GetCurrentThreadId(), &state);
  return state;
}

// The popup menu that is open now; null if none is.
inline HMENU OpenPopup() {
  constexpr UINT kGetMenu = 0x01E1;
  const HWND shown = FindWindowW(L"#32768", nullptr);
  if (!shown || !IsWindowVisible(shown)) return nullptr;
  return reinterpret_cast<HMENU>(SendMessageW(shown, kGetMenu, 0, 0));
}

// Walks to the item by arrows and takes it by Enter; "" closes the menu, and leaves the bar that it opened out of.
// False while no menu is open.
inline bool ChooseInOpenPopup(const std::wstring& caption) {
  const HMENU menu = OpenPopup();
  const HWND owner = ThreadState().hwndMenuOwner;
  if (!menu || !owner) return false;
  const int wanted = caption.empty() ? -1 : PlaceIn(menu, caption);
  if (wanted < 0) {
    EndMenu();
    return true;
  }
  int marked = -1;
  for (int place = 0; place < GetMenuItemCount(menu); ++place) {
    if (GetMenuState(menu, static_cast<UINT>(place), MF_BYPOSITION) & MF_HILITE) marked = place;
  }
  for (int place = marked + 1; place <= wanted; ++place) {
    if (!(GetMenuState(menu, static_cast<UINT>(place), MF_BYPOSITION) & MF_SEPARATOR)) {
      PostMessageW(owner, WM_KEYDOWN, VK_DOWN, 1);
    }
  }
  PostMessageW(owner, WM_KEYDOWN, VK_RETURN, 1);
  return true;
}

}  // namespace corvane::toolkit_win32
