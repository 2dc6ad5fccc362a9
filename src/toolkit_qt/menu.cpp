#include "toolkit_qt/menu.h"

#include <QActionGroup>
#include <algorithm>

#include "forms/form.h"
#include "forms/mnemonic.h"
#include "toolkit_qt/fonts.h"
#include "toolkit_qt/form.h"
#include "toolkit_qt/texts.h"
#include "toolkit_qt/toolkit.h"

namespace corvane::toolkit_qt {
namespace {

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

MenuBar::MenuBar(QtToolkit& toolkit, forms::Form& form, QWidget& window)
    : toolkit_(toolkit), form_(form), bar_(new QMenuBar(&window)) {
  bar_->setNativeMenuBar(false);
  bar_->setFont(MenuFont());
}

MenuBar::~MenuBar() {
  if (popup_) popup_->close();
}

void MenuBar::Renew() {
  if (stale_ || !bar_) return;
  stale_ = true;
  QMetaObject::invokeMethod(
      &context_, [this] { ShowTitles(); }, Qt::QueuedConnection);
}

void MenuBar::ShowTitles() {
  if (!stale_ || !bar_) return;
  stale_ = false;
  bar_->clear();
  const auto on_chosen = [this](forms::Menu& item) {
    toolkit_.Guard([&] {
      if (IsThere(&item)) item.UserClick();
    });
  };
  for (forms::Menu* menu : form_.Menus()) {
    if (!menu->Visible()) continue;
    QMenu* shown = bar_->addMenu(ShownText(menu->Caption()));
    shown->menuAction()->setEnabled(menu->Enabled());
    OpenWith(*shown, *menu, on_chosen);
  }
}

bool MenuBar::IsThere(const forms::Menu* item) const {
  return form_.HasMenu(item);
}

// The menu's own Click may change its items, or take the form away.
void MenuBar::OpenWith(QMenu& shown, forms::Menu& menu, const OnChosen& on_chosen) {
  const QPointer<QObject> self(&context_);
  QObject::connect(&shown, &QMenu::aboutToShow, &context_, [this, self, &shown, &menu, on_chosen] {
    if (!IsThere(&menu)) return;
    const QPointer<QMenu> still(&shown);
    toolkit_.Guard([&] { menu.UserOpen(); });
    if (!self || !still || !IsThere(&menu)) return;
    shown.clear();
    Fill(shown, menu, on_chosen);
  });
}

void MenuBar::Fill(QMenu& shown, const forms::Menu& menu, const OnChosen& on_chosen) {
  shown.setFont(MenuFont());
  for (forms::Menu* item : menu.Items()) {
    if (!item->Visible()) continue;
    if (item->IsSeparator()) {
      shown.addSeparator();
    } else if (!item->Items().empty()) {
      AddSubmenu(shown, *item, on_chosen);
    } else {
      AddItem(shown, *item, on_chosen);
    }
  }
}

// Entries of a menu that opens out of another are read when it opens.
void MenuBar::AddSubmenu(QMenu& shown, forms::Menu& item, const OnChosen& on_chosen) {
  QMenu* sub = shown.addMenu(ShownText(item.Caption()));
  sub->menuAction()->setEnabled(item.Enabled());
  OpenWith(*sub, item, on_chosen);
}

void MenuBar::AddItem(QMenu& shown, forms::Menu& item, const OnChosen& on_chosen) {
  QString text = ShownText(item.Caption());
  if (const std::string keys = item.ShortcutText(); !keys.empty()) text += '\t' + ShownText(keys);
  QAction* action = shown.addAction(text);
  action->setCheckable(item.Checked());
  action->setChecked(item.Checked());
  action->setEnabled(item.Enabled());
  QObject::connect(action, &QAction::triggered, &context_, [&item, on_chosen] { on_chosen(item); });
}

int MenuBar::ShownHeight() {
  return form_.ShowsMenuBar() ? kHeight : 0;
}

int MenuBar::LayOut(int width) {
  if (!bar_) return 0;
  ShowTitles();
  bar_->setVisible(ShownHeight() > 0);
  bar_->setGeometry(0, 0, width, ShownHeight());
  return ShownHeight();
}

bool MenuBar::Open(int key_code) {
  if (!bar_ || !bar_->isVisible()) return false;
  int place = -1;
  for (forms::Menu* menu : form_.Menus()) {
    if (!menu->Visible()) continue;
    ++place;
    if (!menu->Enabled() || forms::AccessKeyOf(menu->Caption()) != key_code) continue;
    bar_->setActiveAction(bar_->actions().value(place));
    return true;
  }
  return false;
}

forms::Menu* MenuBar::ChooseFrom(forms::Menu& menu, QPoint place) {
  forms::Menu* chosen = nullptr;
  QMenu shown;
  const QPointer<QObject> self(&context_);
  Fill(shown, menu, [&](forms::Menu& item) { chosen = &item; });
  popup_ = &shown;
  if (!shown.isEmpty()) shown.exec(place);
  return self && chosen && IsThere(chosen) ? chosen : nullptr;
}

}  // namespace corvane::toolkit_qt
