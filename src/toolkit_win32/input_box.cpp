#include "toolkit_win32/input_box.h"

#include <algorithm>
#include <exception>
#include <vector>

namespace corvane::toolkit_win32 {
namespace {

// In dialog units, which follow the system's font and its scale.
struct Place {
  short left, top, width, height;
};
constexpr Place kWindow = {0, 0, 242, 86};
constexpr Place kPrompt = {6, 6, 176, 54};
constexpr Place kOK = {188, 6, 48, 14};
constexpr Place kCancel = {188, 23, 48, 14};
constexpr Place kText = {6, 66, 230, 13};

constexpr WORD kButtonClass = 0x0080, kEditClass = 0x0081, kStaticClass = 0x0082;

// The bytes of a dialog's description.
class Template {
 public:
  Template(const Place& place, const std::wstring& title, WORD items) {
    const DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_SETFONT | DS_FIXEDSYS;
    Put(style), Put(DWORD{0}), Put(items), Put(place);
    Put(WORD{0}), Put(WORD{0}), Put(title);
    Put(WORD{8}), Put(std::wstring(L"MS Shell Dlg"));
  }
  void Add(WORD kind, int id, DWORD style, const Place& place, const std::wstring& text) {
    while (words_.size() % 2 != 0) words_.push_back(0);
    Put(WS_CHILD | WS_VISIBLE | style), Put(DWORD{0}), Put(place), Put(static_cast<WORD>(id));
    Put(WORD{0xFFFF}), Put(kind), Put(text), Put(WORD{0});
  }
  const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

 private:
  void Put(WORD value) { words_.push_back(value); }
  void Put(DWORD value) { Put(LOWORD(value)), Put(HIWORD(value)); }
  void Put(const Place& place) {
    for (short value : {place.left, place.top, place.width, place.height}) Put(static_cast<WORD>(value));
  }
  void Put(const std::wstring& text) {
    for (wchar_t character : text) Put(static_cast<WORD>(character));
    Put(WORD{0});
  }
  std::vector<WORD> words_;
};

struct Box {
  const std::wstring& prompt;
  const std::wstring& text;
  AtStart at_start;
  std::wstring answer;
  std::exception_ptr fault;  // for the caller of the dialog
};

RECT PlaceIn(HWND dialog, HWND item) {
  RECT place{};
  GetWindowRect(item, &place);
  MapWindowPoints(HWND_DESKTOP, dialog, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

// Pixels that the prompt needs below its place in the design.
int MissingHeight(HWND dialog) {
  const HWND item = GetDlgItem(dialog, kInputPrompt);
  const RECT place = PlaceIn(dialog, item);
  RECT needed{0, 0, place.right - place.left, 0};
  const auto& box = *reinterpret_cast<const Box*>(GetWindowLongPtrW(dialog, DWLP_USER));
  const HDC canvas = GetDC(item);
  const HGDIOBJ before = SelectObject(canvas, reinterpret_cast<HFONT>(SendMessageW(item, WM_GETFONT, 0, 0)));
  DrawTextW(canvas, box.prompt.c_str(), static_cast<int>(box.prompt.size()), &needed,
            DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EXPANDTABS);
  SelectObject(canvas, before);
  ReleaseDC(item, canvas);
  return std::max<int>(0, needed.bottom - (place.bottom - place.top));
}

// A long prompt makes the window higher, a third of the screen's rest stays above it.
void Arrange(HWND dialog) {
  RECT window{};
  GetWindowRect(dialog, &window);
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(GetWindow(dialog, GW_OWNER), MONITOR_DEFAULTTOPRIMARY), &monitor);
  const RECT& room = monitor.rcWork;
  const int width = window.right - window.left, height = window.bottom - window.top;
  const int more = std::min<int>(MissingHeight(dialog), std::max<int>(0, room.bottom - room.top - height));
  const HWND prompt = GetDlgItem(dialog, kInputPrompt), text = GetDlgItem(dialog, kInputText);
  const RECT above = PlaceIn(dialog, prompt), below = PlaceIn(dialog, text);
  SetWindowPos(prompt, nullptr, 0, 0, above.right - above.left, above.bottom - above.top + more,
               SWP_NOMOVE | SWP_NOZORDER);
  SetWindowPos(text, nullptr, below.left, below.top + more, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  SetWindowPos(dialog, nullptr, room.left + (room.right - room.left - width) / 2,
               room.top + (room.bottom - room.top - height - more) / 3, width, height + more, SWP_NOZORDER);
}

std::wstring TextOf(HWND item) {
  std::wstring text(static_cast<size_t>(GetWindowTextLengthW(item)) + 1, L'\0');
  text.resize(static_cast<size_t>(GetWindowTextW(item, text.data(), static_cast<int>(text.size()))));
  return text;
}

INT_PTR CALLBACK HandleMessage(HWND dialog, UINT message, WPARAM w, LPARAM l) noexcept {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(dialog, DWLP_USER, l);
    const auto& box = *reinterpret_cast<const Box*>(l);
    SetDlgItemTextW(dialog, kInputPrompt, box.prompt.c_str());
    SetDlgItemTextW(dialog, kInputText, box.text.c_str());
    Arrange(dialog);
    if (box.at_start == AtStart::Selected) return TRUE;  // the focus goes to the text, all of which is selected then
    const HWND edit = GetDlgItem(dialog, kInputText);
    SetFocus(edit);
    SendMessageW(edit, EM_SETSEL, box.text.size(), static_cast<LPARAM>(box.text.size()));
    return FALSE;
  }
  if (message != WM_COMMAND) return FALSE;
  const WORD button = LOWORD(w);
  if (button != IDOK && button != IDCANCEL) return FALSE;
  auto* box = reinterpret_cast<Box*>(GetWindowLongPtrW(dialog, DWLP_USER));
  try {
    if (button == IDOK) box->answer = TextOf(GetDlgItem(dialog, kInputText));
  } catch (...) {
    box->fault = std::current_exception();
  }
  EndDialog(dialog, button);
  return TRUE;
}

}  // namespace

// The text comes first: it has the focus.
std::wstring ShowInputBox(HWND owner, const std::wstring& prompt, const std::wstring& title, const std::wstring& text,
                          AtStart at_start) {
  Template dialog(kWindow, title, 4);
  dialog.Add(kEditClass, kInputText, WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, kText, L"");
  dialog.Add(kButtonClass, IDOK, WS_TABSTOP | BS_DEFPUSHBUTTON, kOK, L"OK");
  dialog.Add(kButtonClass, IDCANCEL, WS_TABSTOP | BS_PUSHBUTTON, kCancel, L"Cancel");
  dialog.Add(kStaticClass, kInputPrompt, SS_LEFT | SS_NOPREFIX, kPrompt, L"");
  Box box{prompt, text, at_start, {}, {}};
  DialogBoxIndirectParamW(GetModuleHandleW(nullptr), dialog.Get(), owner, HandleMessage,
                          reinterpret_cast<LPARAM>(&box));
  if (box.fault) std::rethrow_exception(box.fault);
  return std::move(box.answer);
}

}  // namespace corvane::toolkit_win32
