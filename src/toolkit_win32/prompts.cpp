#include "toolkit_win32/prompts.h"

#include "toolkit_win32/input_box.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/thread_windows.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr long kButtons = 15;  // the part of a style that tells them

// Visual Basic's styles are those of the system.
UINT SystemStyle(long style) {
  const bool known = (style & kButtons) <= host::vbRetryCancel;
  return static_cast<UINT>(known ? style : style & ~kButtons);
}

class SystemPrompts : public host::Prompts {
 public:
  SystemPrompts(const host::App& app, const Win32Toolkit& toolkit) : app_(app), toolkit_(toolkit) {}

  long MsgBox(const std::string& prompt, long style, const std::string& title) override {
    const std::wstring text = ShownText(prompt), caption = TitleOr(title);
    const HWND owner = toolkit_.FrontWindow();
    const OtherWindowsDisabled others(owner);
    const VisualStyles::Use styled(toolkit_.Styles());
    const int answer = MessageBoxW(owner, text.c_str(), caption.c_str(), SystemStyle(style));
    if (answer == 0) throw runtime::Error(runtime::kInvalidProcedureCall);
    return answer;
  }

  std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text) override {
    return Ask(prompt, title, text, AtStart::Selected);
  }

  std::string InputBoxTyped(const std::string& prompt, const std::string& typed) override {
    return Ask(prompt, {}, typed, AtStart::CaretBehind);
  }

 private:
  std::string Ask(const std::string& prompt, const std::string& title, const std::string& text, AtStart at_start) {
    const HWND owner = toolkit_.FrontWindow();
    const OtherWindowsDisabled others(owner);
    const VisualStyles::Use styled(toolkit_.Styles());
    return BytesOf(ShowInputBox(owner, ShownText(prompt), TitleOr(title), ShownText(text), at_start));
  }
  std::wstring TitleOr(const std::string& title) const { return ShownText(title.empty() ? app_.Title : title); }

  const host::App& app_;
  const Win32Toolkit& toolkit_;
};

}  // namespace

std::unique_ptr<host::Prompts> NewPrompts(const host::App& app, const Win32Toolkit& toolkit) {
  return std::make_unique<SystemPrompts>(app, toolkit);
}

}  // namespace corvane::toolkit_win32
