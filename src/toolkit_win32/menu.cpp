#include "toolkit_win32/menu.h"

#include <algorithm>
#include <string>

#include "forms/form.h"
#include "toolkit_win32/form.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

constexpr unsigned kFirstNumber = 0x100;

// Titles of the bar follow their menus; items are read when they are opened.
class MenuPeer : public forms::Peer {
 public:
  explicit MenuPeer(forms::Menu& menu) : menu_(menu) {}
  void Changed(forms::Property) override {
    if (menu_.Parent()) return;
    if (auto* form = dynamic_cast<FormWindowPeer*>(menu_.FormOf().Peer())) form->Menus().Renew();
  }

 private:
  forms::Menu& menu_;
};

}  // namespace

std::unique_ptr<forms::Peer> NewMenuPeer(forms::Menu& menu) {
  return std::make_unique<MenuPeer>(menu);
}

MenuBar::MenuBar(Win32Toolkit& toolkit, forms::Form& form, Window& window)
    : toolkit_(toolkit), form_(form), window_(window) {}

// The window's own menu goes with the window.
MenuBar::~MenuBar() {
  life_.reset();
}

void MenuBar::Renew() {
  if (stale_) return;
  stale_ = true;
  toolkit_.Post(life_, [this] { ShowNow(); });
}

// Not while a menu is open: that one goes on with what it shows, and tells when it closes.
void MenuBar::ShowNow() {
  if (!stale_ || is_open_ || !window_) return;
  stale_ = false;
  const HMENU before = bar_;
  bar_ = form_.ShowsMenuBar() ? CreateMenu() : nullptr;
  opened_by_.clear();
  if (bar_) FillTitles();
  SetMenu(window_.Handle(), bar_);
  if (before) DestroyMenu(before);
}

void MenuBar::FillTitles() {
  for (forms::Menu* menu : form_.Menus()) {
    if (!menu->Visible()) continue;
    const HMENU sub = CreatePopupMenu();
    opened_by_[sub] = menu;
    AppendMenuW(bar_, MF_POPUP | (menu->Enabled() ? MF_ENABLED : MF_GRAYED), reinterpret_cast<UINT_PTR>(sub),
                ShownText(menu->Caption()).c_str());
  }
}

void MenuBar::Fill(HMENU shown, const forms::Menu& menu) {
  while (GetMenuItemCount(shown) > 0) DeleteMenu(shown, 0, MF_BYPOSITION);
  for (forms::Menu* item : menu.Items()) {
    if (!item->Visible()) continue;
    if (item->IsSeparator()) {
      AppendMenuW(shown, MF_SEPARATOR, 0, nullptr);
    } else {
      AddItem(shown, *item);
    }
  }
}

// Entries of a menu that opens out of another are read when it opens.
void MenuBar::AddItem(HMENU shown, forms::Menu& item) {
  const UINT state = (item.Enabled() ? MF_ENABLED : MF_GRAYED) | (item.Checked() ? MF_CHECKED : MF_UNCHECKED);
  std::wstring text = ShownText(item.Caption());
  if (const std::string keys = item.ShortcutText(); !keys.empty()) text += L'\t' + ShownText(keys);
  if (!item.Items().empty()) {
    const HMENU sub = CreatePopupMenu();
    opened_by_[sub] = &item;
    AppendMenuW(shown, MF_POPUP | state, reinterpret_cast<UINT_PTR>(sub), text.c_str());
    return;
  }
  AppendMenuW(shown, MF_STRING | state, kFirstNumber + items_.size(), text.c_str());
  items_.push_back(&item);
}

bool MenuBar::IsThere(const forms::Menu* item) const {
  return form_.HasMenu(item);
}

// The menu's own Click may change its items, or the bar.
void MenuBar::Opens(HMENU shown) {
  const auto found = opened_by_.find(shown);
  if (found == opened_by_.end() || !IsThere(found->second)) return;
  forms::Menu* menu = found->second;
  const Life self = life_;
  toolkit_.Guard([menu] { menu->UserOpen(); });
  if (self.expired()) return;
  if (IsThere(menu)) Fill(shown, *menu);
  ForgetClosed();
}

// A menu that is filled anew destroys those that opened out of it.
void MenuBar::ForgetClosed() {
  std::erase_if(opened_by_, [](const auto& entry) { return !IsMenu(entry.first); });
}

void MenuBar::Chosen(unsigned number) {
  const size_t place = number - kFirstNumber;
  forms::Menu* item = number >= kFirstNumber && place < items_.size() ? items_[place] : nullptr;
  items_.clear();
  if (!item) return;
  toolkit_.Guard([&] {
    if (IsThere(item)) item->UserClick();
  });
}

std::optional<LRESULT> MenuBar::OnMessage(const Message& message) {
  switch (message.id) {
    case WM_ENTERMENULOOP:
      is_open_ = true;
      if (!message.w) items_.clear();
      return std::nullopt;
    case WM_EXITMENULOOP:
      is_open_ = false;
      if (stale_) toolkit_.Post(life_, [this] { ShowNow(); });
      return std::nullopt;
    case WM_INITMENUPOPUP:
      if (HIWORD(message.l)) return std::nullopt;  // the window's own menu
      Opens(reinterpret_cast<HMENU>(message.w));
      return 0;
    case WM_COMMAND:
      if (message.l != 0 || HIWORD(message.w) != 0) return std::nullopt;
      Chosen(LOWORD(message.w));
      return 0;
    default:
      return std::nullopt;
  }
}

forms::Menu* MenuBar::ChooseFrom(forms::Menu& menu, POINT place) {
  const HMENU shown = CreatePopupMenu();
  items_.clear();
  Fill(shown, menu);
  const Life self = life_;
  unsigned number = 0;
  if (GetMenuItemCount(shown) > 0) {
    number = static_cast<unsigned>(TrackPopupMenuEx(shown, TPM_RETURNCMD | TPM_LEFTALIGN | TPM_RIGHTBUTTON, place.x,
                                                    place.y, window_.Handle(), nullptr));
  }
  DestroyMenu(shown);
  if (self.expired()) return nullptr;
  ForgetClosed();
  const size_t chosen = number - kFirstNumber;
  forms::Menu* item = number >= kFirstNumber && chosen < items_.size() ? items_[chosen] : nullptr;
  items_.clear();
  return item && IsThere(item) ? item : nullptr;
}

}  // namespace corvane::toolkit_win32
