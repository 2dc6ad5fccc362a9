#include "forms/toolbar.h"

#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include "toolkit_qt/fonts.h"
#include "toolkit_qt/peer.h"
#include "toolkit_qt/peers.h"
#include "toolkit_qt/pictures.h"
#include "toolkit_qt/texts.h"

namespace corvane::toolkit_qt {
namespace {

constexpr int kIcon = 16;  // logical pixels

bool IsBlank(const forms::ToolButton& button) {
  return button.Style == forms::ToolButtonStyle::Separator || button.Style == forms::ToolButtonStyle::Placeholder;
}

class ToolbarPeer : public ControlPeer {
 public:
  ToolbarPeer(QtToolkit& toolkit, forms::Toolbar& bar)
      : ControlPeer(toolkit, bar), bar_(bar), shown_(new QToolBar(InsideOf(bar.ContainerOf()))) {
    shown_->setIconSize({kIcon, kIcon});
    shown_->setMovable(false);
    shown_->setContentsMargins(0, 0, 0, 0);
    shown_->setContextMenuPolicy(Qt::PreventContextMenu);
    SetWidget(shown_, Input::Mouse::Untold);
  }

 protected:
  void ShowOwn(forms::Property property) override {
    if (property != forms::Property::All && property != forms::Property::Buttons) return;
    const QList<QAction*> actions = shown_->actions();
    for (int position = actions.size() + 1; position <= bar_.Count(); ++position) AddAction(position);
    for (int position = 1; position <= bar_.Count(); ++position) ShowButton(position);
  }

 private:
  void AddAction(int position) {
    const forms::ToolButton& button = bar_.Button(position);
    if (IsBlank(button)) {
      shown_->addSeparator();
      return;
    }
    QAction* action = shown_->addAction(QString());
    QObject::connect(action, &QAction::triggered, input_.get(), [this, position] {
      ReportThenShow(forms::Property::Buttons, [this, position] { bar_.UserButtonClick(position); });
    });
    if (button.Style == forms::ToolButtonStyle::DropDown) AddMenu(*action, position);
  }

  // Its entries are read when it opens.
  void AddMenu(QAction& action, int position) {
    auto* menu = new QMenu(shown_);
    action.setMenu(menu);
    ToolButtonOf(&action)->setPopupMode(QToolButton::MenuButtonPopup);
    QObject::connect(menu, &QMenu::aboutToShow, input_.get(), [this, menu, position] {
      const QPointer<Input> self(input_.get());
      Report([this, position] { bar_.UserButtonDropDown(position); });
      if (self) FillMenu(*menu, position);
    });
  }

  void FillMenu(QMenu& menu, int position) {
    menu.clear();
    menu.setFont(MenuFont());
    int entry = 0;
    for (const forms::ButtonMenu& item : bar_.Button(position).ButtonMenus) {
      ++entry;
      if (item.Text == "-") {
        menu.addSeparator();
        continue;
      }
      QAction* action = menu.addAction(ShownText(item.Text));
      action->setEnabled(item.Enabled);
      QObject::connect(action, &QAction::triggered, input_.get(),
                       [this, position, entry] { Report([=, this] { bar_.UserButtonMenuClick(position, entry); }); });
    }
  }

  QToolButton* ToolButtonOf(QAction* action) const {
    return qobject_cast<QToolButton*>(shown_->widgetForAction(action));
  }

  void ShowButton(int position) {
    using forms::ToolButtonStyle;
    const forms::ToolButton& button = bar_.Button(position);
    QAction* action = shown_->actions().at(position - 1);
    action->setVisible(button.Visible);
    if (IsBlank(button)) return;
    const bool turns = button.Style == ToolButtonStyle::Check || button.Style == ToolButtonStyle::ButtonGroup;
    action->setCheckable(turns || button.Pressed);
    action->setChecked(button.Pressed);
    action->setEnabled(button.Enabled);
    action->setText(ShownText(button.Caption));
    action->setToolTip(ShownText(button.ToolTipText.empty() ? button.Caption : button.ToolTipText));
    ShowImage(*action, button.Image);
    if (QToolButton* shown = ToolButtonOf(action)) shown->setToolButtonStyle(StyleFor(button, *action));
  }

  // The icon is made once for a picture: an icon that changes is laid out anew.
  void ShowImage(QAction& action, int image) {
    const forms::PictureRef picture = bar_.ImageListOf() ? bar_.ImageListOf()->Item(image) : nullptr;
    const auto key = QVariant::fromValue(reinterpret_cast<quintptr>(picture.get()));
    if (action.data() == key) return;
    action.setData(key);
    action.setIcon(IconOf(picture));
  }

  static Qt::ToolButtonStyle StyleFor(const forms::ToolButton& button, const QAction& action) {
    if (action.icon().isNull()) return Qt::ToolButtonTextOnly;
    return button.Caption.empty() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon;
  }

  forms::Toolbar& bar_;
  QToolBar* shown_;
};

}  // namespace

NewPeer NewToolbarPeer(QtToolkit& toolkit, forms::Toolbar& bar) {
  return std::make_unique<ToolbarPeer>(toolkit, bar);
}

}  // namespace corvane::toolkit_qt
