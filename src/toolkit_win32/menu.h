// The menu bar of a form, and popup menus. Their entries are read from the form's menus each time one opens, so there
// is nothing to keep in step but the titles of the bar.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "forms/menu.h"
#include "toolkit_win32/window.h"

namespace corvane::toolkit_win32 {

class Win32Toolkit;

class MenuBar {
 public:
  MenuBar(Win32Toolkit& toolkit, forms::Form& form, Window& window);
  ~MenuBar();
  MenuBar(const MenuBar&) = delete;
  MenuBar& operator=(const MenuBar&) = delete;
  // The titles again, at the next turn of the loop or when the window is shown.
  void Renew();
  void ShowNow();
  // A message of the form's window about menus: the answer, or nothing.
  std::optional<LRESULT> OnMessage(const Message& message);
  // Shows the items of [menu] at a place of the screen and waits. The chosen one, null for none.
  forms::Menu* ChooseFrom(forms::Menu& menu, POINT place);

 private:
  void Opens(HMENU shown);
  void ForgetClosed();
  void Fill(HMENU shown, const forms::Menu& menu);
  void AddItem(HMENU shown, forms::Menu& item);
  void FillTitles();
  void Chosen(unsigned number);
  bool IsThere(const forms::Menu* item) const;

  Win32Toolkit& toolkit_;
  forms::Form& form_;
  Window& window_;
  HMENU bar_ = nullptr;
  std::map<HMENU, forms::Menu*> opened_by_;  // menus that are shown, and what they show
  std::vector<forms::Menu*> items_;          // by number
  bool stale_ = true, is_open_ = false;
  std::shared_ptr<const void> life_ = std::make_shared<int>();
};

std::unique_ptr<forms::Peer> NewMenuPeer(forms::Menu& menu);

}  // namespace corvane::toolkit_win32
