#include "toolkit_win32/tool_tips.h"

#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

TTTOOLINFOW ToolOver(HWND over) {
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;  // the older common controls know no longer one
  tool.uFlags = TTF_IDISHWND;
  tool.hwnd = over;
  tool.uId = reinterpret_cast<UINT_PTR>(over);
  return tool;
}

}  // namespace

void ToolTips::Show(HWND over, const std::wstring& text) {
  if (!window_) {
    if (text.empty()) return;
    window_.Create({TOOLTIPS_CLASSW, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, WS_EX_TOPMOST}, nullptr);
  }
  TTTOOLINFOW tool = ToolOver(over);
  window_.Send(TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  if (text.empty()) return;
  tool.lpszText = const_cast<wchar_t*>(text.c_str());
  window_.Send(TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void ToolTips::Hear(HWND over, const Message& message) {
  if (!window_) return;
  MSG heard{over, message.id, message.w, message.l, 0, {}};
  window_.Send(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&heard));
}

}  // namespace corvane::toolkit_win32
