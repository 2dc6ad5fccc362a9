#include "toolkit_win32/send_keys.h"

#include <vector>

#include "forms/sent_keys.h"
#include "forms/types.h"
#include "runtime/error.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr ULONG_PTR kMark = 0x43764B79;  // tells our keys from the user's
constexpr DWORD kLongestWait = 250;      // milliseconds: keys for another program are never heard of here
constexpr int kHeldInScan = 8;           // bits of VkKeyScan's answer that are the key alone

// The key messages of ours that this thread has taken from its queue.
class KeysTaken {
 public:
  KeysTaken() : hook_(SetWindowsHookExW(WH_GETMESSAGE, Note, nullptr, GetCurrentThreadId())) { taken_ = 0; }
  ~KeysTaken() { UnhookWindowsHookEx(hook_); }
  KeysTaken(const KeysTaken&) = delete;
  KeysTaken& operator=(const KeysTaken&) = delete;
  int Count() const { return taken_; }

 private:
  static LRESULT CALLBACK Note(int code, WPARAM removed, LPARAM message) noexcept {
    const UINT id = reinterpret_cast<const MSG*>(message)->message;
    const bool is_key = id == WM_KEYDOWN || id == WM_KEYUP || id == WM_SYSKEYDOWN || id == WM_SYSKEYUP;
    if (code == HC_ACTION && removed == PM_REMOVE && is_key && GetMessageExtraInfo() == LPARAM{kMark}) ++taken_;
    return CallNextHookEx(nullptr, code, removed, message);
  }
  inline static thread_local int taken_ = 0;
  HHOOK hook_;
};

INPUT KeyInput(WORD key, wchar_t character, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = character ? static_cast<WORD>(character) : static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = flags;
  input.ki.dwExtraInfo = kMark;
  return input;
}

// The keys of the block between letters and numbers; without this mark they are those of the number pad.
DWORD FlagsOf(WORD key) {
  const bool extended = (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT || key == VK_DELETE;
  return extended ? KEYEVENTF_EXTENDEDKEY : 0;
}

void AddStroke(std::vector<INPUT>& inputs, WORD key, int shift) {
  constexpr struct {
    int mask;
    WORD key;
  } kHeld[] = {{forms::vbCtrlMask, VK_CONTROL}, {forms::vbAltMask, VK_MENU}, {forms::vbShiftMask, VK_SHIFT}};
  const auto hold = [&](DWORD flags) {
    for (const auto& held : kHeld)
      if (shift & held.mask) inputs.push_back(KeyInput(held.key, 0, flags));
  };
  hold(0);
  inputs.push_back(KeyInput(key, 0, FlagsOf(key)));
  inputs.push_back(KeyInput(key, 0, FlagsOf(key) | KEYEVENTF_KEYUP));
  hold(KEYEVENTF_KEYUP);
}

// A character that no key of the user's keyboard makes is sent as itself.
void AddCharacter(std::vector<INPUT>& inputs, wchar_t character, int shift) {
  const SHORT scan = VkKeyScanW(character);
  if (scan != -1) {
    const int held = scan >> kHeldInScan;  // 1 Shift, 2 Ctrl, 4 Alt, as the masks are
    return AddStroke(inputs, static_cast<WORD>(scan & 0xFF), held | shift);
  }
  inputs.push_back(KeyInput(0, character, KEYEVENTF_UNICODE));
  inputs.push_back(KeyInput(0, character, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP));
}

std::vector<INPUT> InputsOf(const forms::SentKey& sent) {
  std::vector<INPUT> inputs;
  if (sent.character.empty()) AddStroke(inputs, static_cast<WORD>(sent.key_code), sent.shift);
  for (wchar_t character : ShownText(sent.character)) AddCharacter(inputs, character, sent.shift);
  return inputs;
}

// Until this thread has taken them, or [longest] milliseconds when they go elsewhere. Tells whether it has.
bool WaitFor(Win32Toolkit& toolkit, const KeysTaken& keys, int count, DWORD longest) {
  const ULONGLONG end = GetTickCount64() + longest;
  while (true) {
    toolkit.DoEvents();
    const ULONGLONG now = GetTickCount64();
    if (keys.Count() >= count) return true;
    if (now >= end) return false;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, static_cast<DWORD>(end - now), QS_ALLINPUT);
  }
}

}  // namespace

void SendKeys(Win32Toolkit& toolkit, std::string_view keys) {
  const std::vector<forms::SentKey> sent = forms::ParseSentKeys(keys);
  const KeysTaken taken;
  int count = 0;
  bool heard = true;
  for (const forms::SentKey& each : sent) {
    std::vector<INPUT> inputs = InputsOf(each);
    const auto size = static_cast<UINT>(inputs.size());
    if (SendInput(size, inputs.data(), sizeof(INPUT)) != size) throw runtime::Error(runtime::kPermissionDenied);
    count += static_cast<int>(size);
    heard = WaitFor(toolkit, taken, count, heard ? kLongestWait : 0);
  }
  if (!heard) WaitFor(toolkit, taken, count, kLongestWait);  // a busy machine's may still come
}

}  // namespace corvane::toolkit_win32
