// The menu bar of a form, and popup menus. Their entries are read from the form's menus each time one opens, so there
// is nothing to keep in step but the titles of the bar.
#pragma once

#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <functional>
#include <memory>

#include "forms/menu.h"

namespace corvane::toolkit_qt {

class QtToolkit;

class MenuBar {
 public:
  static constexpr int kHeight = 22;  // logical pixels

  MenuBar(QtToolkit& toolkit, forms::Form& form, QWidget& window);
  ~MenuBar();  // an open popup menu goes with its window
  MenuBar(const MenuBar&) = delete;
  MenuBar& operator=(const MenuBar&) = delete;
  // The titles again, at the next turn of the loop or the next layout.
  void Renew();
  int ShownHeight();
  int LayOut(int width);  // returns the height it takes
  bool Open(int key_code);
  // Shows the items of [menu] at a place of the screen and waits. The chosen one, null for none, or when the form went.
  forms::Menu* ChooseFrom(forms::Menu& menu, QPoint place);

 private:
  using OnChosen = std::function<void(forms::Menu&)>;
  bool IsThere(const forms::Menu* item) const;
  void OpenWith(QMenu& shown, forms::Menu& menu, const OnChosen& on_chosen);
  void Fill(QMenu& shown, const forms::Menu& menu, const OnChosen& on_chosen);
  void AddSubmenu(QMenu& shown, forms::Menu& item, const OnChosen& on_chosen);
  void AddItem(QMenu& shown, forms::Menu& item, const OnChosen& on_chosen);
  void ShowTitles();
  QtToolkit& toolkit_;
  forms::Form& form_;
  QPointer<QMenuBar> bar_;
  QPointer<QMenu> popup_;  // that is open
  bool stale_ = true;
  QObject context_;  // the bar's window may outlive this: with it end the connections
};

std::unique_ptr<forms::Peer> NewMenuPeer(forms::Menu& menu);

}  // namespace corvane::toolkit_qt
