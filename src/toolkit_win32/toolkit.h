// Win32Toolkit: windows on the Windows API. One for a library or program, used on the thread it was made on. When it
// goes, nothing of it is left in the process: its windows are destroyed, its window class and its hook are taken back.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "forms/form.h"
#include "forms/toolkit.h"
#include "toolkit_win32/canvas.h"
#include "toolkit_win32/fonts.h"
#include "toolkit_win32/pictures.h"
#include "toolkit_win32/tool_tips.h"
#include "toolkit_win32/units.h"
#include "toolkit_win32/visual_styles.h"
#include "toolkit_win32/window.h"
#include "toolkit_win32/window_yard.h"

namespace corvane::toolkit_win32 {

class KeyHook;

class Win32Toolkit : public forms::Toolkit, private MessageSink {
 public:
  // [instance]: the module that this code stands in; null: found out. [dpi]: dots to the inch; 0: the system's.
  explicit Win32Toolkit(HINSTANCE instance = nullptr, int dpi = 0);
  ~Win32Toolkit() override;

  // The environment's main window: forms that are loaded from now on stay in front of it. Null for none.
  void SetHostWindow(HWND window) { host_window_ = window; }
  HWND HostWindow() const { return host_window_; }
  // The window that a message box or another dialog of the system belongs to: the active form's, else the host's.
  HWND FrontWindow() const;
  // The native windows of what is loaded; null for others.
  HWND WindowOf(const forms::Form& form) const;
  HWND WindowOf(const forms::Control& control) const;

  std::unique_ptr<forms::FormPeer> NewFormPeer(forms::Form& form) override;
  std::unique_ptr<forms::Peer> NewPeer(forms::Control& control) override;
  forms::TextMetrics& Metrics() override { return metrics_; }
  forms::Rect FrameOf(const forms::Form& form) override;
  void RunModal(forms::Form& form) override;
  // All messages that wait, of the environment's windows too. WM_QUIT is left to the environment's own loop.
  void DoEvents() override;
  void PopupMenu(forms::Form& form, forms::Menu& menu, forms::Twips x, forms::Twips y) override;
  forms::Control* ControlUnderPointer() override;

  // The pointer over all our windows (Screen.MousePointer); 0: each its own.
  void SetScreenPointer(int mouse_pointer);
  int ScreenPointer() const { return screen_pointer_; }

  // For peers.
  HINSTANCE Instance() const { return instance_; }
  const wchar_t* OwnClass() const { return own_class_.c_str(); }
  const PixelScale& Scale() const { return scale_; }
  FontStore& Fonts() { return fonts_; }
  PictureStore& Pictures() { return pictures_; }
  ToolTips& Tips() { return tips_; }
  const VisualStyles& Styles() const { return styles_; }
  const std::shared_ptr<WindowYard>& Yard() const { return yard_; }
  // Takes keys out of message loops while somebody holds it.
  std::shared_ptr<KeyHook> Keys();
  // Whether a key was used up while Alt is down: its release opens no menu then.
  bool AltUsed() const { return alt_used_; }
  void SetAltUsed(bool value) { alt_used_ = value; }
  // Calls [tick] each [milliseconds] until it is stopped by its number; not while it runs.
  UINT_PTR StartClock(unsigned milliseconds, std::function<void()> tick);
  void StopClock(UINT_PTR number);
  // Runs [act] at the next turn of the message loop, if [wanted_by] is still there.
  void Post(Life wanted_by, std::function<void()> act);

  // While one lives, focus and size change because the logic said so, and are not reported as acts.
  class ByCode {
   public:
    explicit ByCode(Win32Toolkit& toolkit) : toolkit_(toolkit) { ++toolkit_.by_code_; }
    ~ByCode() { --toolkit_.by_code_; }
    ByCode(const ByCode&) = delete;
    ByCode& operator=(const ByCode&) = delete;

   private:
    Win32Toolkit& toolkit_;
  };
  bool IsByCode() const { return by_code_ > 0; }

 private:
  LRESULT OnMessage(Window& window, const Message& message) override;
  void RunPosted();

  HINSTANCE instance_;
  PixelScale scale_;
  std::wstring own_class_;
  HWND host_window_ = nullptr;
  int by_code_ = 0, screen_pointer_ = 0;
  VisualStyles styles_;
  FontStore fonts_;
  PictureStore pictures_;
  Win32TextMetrics metrics_;
  std::shared_ptr<WindowYard> yard_ = std::make_shared<WindowYard>();
  struct Posted {
    Life wanted_by;
    std::function<void()> act;
  };
  std::vector<Posted> posted_;
  struct Clock {
    std::function<void()> tick;
    bool runs = false;
  };
  void Tick(UINT_PTR number);
  std::map<UINT_PTR, Clock> clocks_;
  UINT_PTR last_clock_ = 0;
  ToolTips tips_;
  Window desk_;  // never shown: clocks and posted acts come to it
  std::weak_ptr<KeyHook> keys_;
  bool alt_used_ = false;
};

}  // namespace corvane::toolkit_win32
