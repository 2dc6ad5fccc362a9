#include "tests/desk/widget_layout.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QBoxLayout>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>

namespace corvane::desk {

namespace {

QString SaidBy(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
  if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) return group->title();
  return widget.windowTitle();
}

// "CheckBox" for a QCheckBox and whatever is made from one.
QString KindOf(const QWidget& widget) {
  QString kind = widget.metaObject()->className();
  kind = kind.mid(kind.lastIndexOf(':') + 1);
  return kind.size() > 1 && kind[0] == 'Q' && kind[1].isUpper() ? kind.mid(1) : kind;
}

QString Named(const QWidget& widget) {
  QString text = KindOf(widget);
  if (const QString said = SaidBy(widget); !said.isEmpty()) text += " \"" + QString(said).replace('\n', '|') + "\"";
  return text;
}

QString Described(const QWidget& widget) {
  QString text = Named(widget);
  if (const auto* label = qobject_cast<const QLabel*>(&widget); label && label->buddy())
    text += " of " + Named(*label->buddy());
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget); button && button->isCheckable())
    text += button->isChecked() ? " checked" : "";
  if (const auto* button = qobject_cast<const QPushButton*>(&widget); button && button->isDefault()) text += " default";
  if (!widget.isEnabled()) text += " disabled";
  if (widget.isHidden()) text += " hidden";
  return text;
}

class Writer {
 public:
  void Widget(const QWidget& widget, int depth, const QString& place = {}) {
    Line(depth, place + Described(widget));
    if (const auto* box = qobject_cast<const QDialogButtonBox*>(&widget)) return Buttons(*box, depth + 1);
    if (widget.layout() && !qobject_cast<const QComboBox*>(&widget)) Layout(*widget.layout(), depth + 1);
  }

  void Layout(const QLayout& layout, int depth) {
    if (const auto* grid = qobject_cast<const QGridLayout*>(&layout)) return Grid(*grid, depth);
    const auto* box = qobject_cast<const QBoxLayout*>(&layout);
    const bool across = box && (box->direction() == QBoxLayout::LeftToRight);
    Line(depth, across ? "row" : "column");
    for (int at = 0; at < layout.count(); ++at)
      Item(*layout.itemAt(at), depth + 1, box && box->stretch(at) ? "stretched " : "");
  }

  void Line(int depth, const QString& text) { text_ += QString(2 * depth, ' ') + text + "\n"; }
  std::string Text() const { return text_.toStdString(); }

 private:
  // Their order is that of the user's desktop.
  void Buttons(const QDialogButtonBox& box, int depth) {
    QStringList buttons;
    for (const QAbstractButton* button : box.buttons()) buttons << Described(*button);
    buttons.sort();
    for (const QString& button : buttons) Line(depth, button);
  }

  void Grid(const QGridLayout& grid, int depth) {
    Line(depth, "grid");
    QMap<std::pair<int, int>, QPair<QLayoutItem*, QString>> cells;
    for (int at = 0; at < grid.count(); ++at) {
      int row, column, rows, columns;
      grid.getItemPosition(at, &row, &column, &rows, &columns);
      QString place = QString("%1,%2 ").arg(row).arg(column);
      if (rows != 1 || columns != 1) place += QString("over %1 x %2 ").arg(rows).arg(columns);
      cells[{row, column}] = {grid.itemAt(at), place};
    }
    for (const auto& cell : cells) Item(*cell.first, depth + 1, cell.second);
  }

  void Item(QLayoutItem& item, int depth, const QString& place) {
    if (item.widget())
      Widget(*item.widget(), depth, place);
    else if (item.layout())
      Layout(*item.layout(), depth);
    else
      Line(depth, place + "space");
  }

  QString text_;
};

QString TabOrder(QWidget& window) {
  QStringList stops;
  for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain())
    if (window.isAncestorOf(at) && (at->focusPolicy() & Qt::TabFocus) && at->isVisibleTo(&window) && at->isEnabled() &&
        !at->focusProxy())
      stops << Named(*at);
  return "tab: " + stops.join(", ");
}

QString ActionText(const QAction& action) {
  if (action.isSeparator()) return "-";
  QString text = "\"" + action.text() + "\"";
  if (!action.shortcut().isEmpty()) text += " " + action.shortcut().toString(QKeySequence::PortableText);
  if (action.isCheckable()) text += action.isChecked() ? " [x]" : " [ ]";
  if (!action.icon().isNull()) text += " icon";
  if (!action.isEnabled()) text += " disabled";
  return text;
}

QString SideOf(Qt::DockWidgetArea area) {
  return area == Qt::RightDockWidgetArea    ? "right"
         : area == Qt::BottomDockWidgetArea ? "bottom"
         : area == Qt::LeftDockWidgetArea   ? "left"
                                            : "top";
}

// Widgets that Qt makes for itself inside others.
bool IsInner(const QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  return widget.objectName().startsWith("qt_") || qobject_cast<const QScrollBar*>(&widget) ||
         qobject_cast<const QComboBox*>(parent) || qobject_cast<const QTabBar*>(parent) ||
         qobject_cast<const QMenuBar*>(parent) || qobject_cast<const QHeaderView*>(parent);
}

// Docks behind others in one place, and the tabs of a place with one dock: Qt keeps them outside the window.
bool IsPutAway(const QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  return qobject_cast<const QMainWindow*>(parent) && !parent->rect().intersects(widget.geometry()) &&
         (qobject_cast<const QDockWidget*>(&widget) || qobject_cast<const QTabBar*>(&widget));
}

void CheckText(const QWidget& widget, std::vector<std::string>& unfit) {
  const auto report = [&](const QString& what) { unfit.push_back((Named(widget) + what).toStdString()); };
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    if (label->text().isEmpty()) return;
    const int height = label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
    if (!label->wordWrap() && label->sizeHint().width() > label->width()) report(" is wider than its place");
    if (height > label->height()) report(" is higher than its place");
  } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    const auto* tool = qobject_cast<const QToolButton*>(button);
    if (button->text().isEmpty() || (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly)) return;
    const QSize need = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
    if (need.width() > button->width() || need.height() > button->height()) report(" does not fit its button");
  } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
    for (int at = 0; at < tabs->count(); ++at)
      if (tabs->fontMetrics().horizontalAdvance(tabs->tabText(at)) > tabs->tabRect(at).width())
        report(" cuts the tab " + tabs->tabText(at));
  } else if (const auto* header = qobject_cast<const QHeaderView*>(&widget)) {
    for (int at = 0; header->orientation() == Qt::Horizontal && at < header->count(); ++at) {
      const QString text = header->model()->headerData(at, Qt::Horizontal).toString();
      if (header->fontMetrics().horizontalAdvance(text) > header->sectionSize(at)) report(" cuts the heading " + text);
    }
  }
}

void CheckPlaces(const QWidget& window, std::vector<std::string>& unfit) {
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->isWindow() || IsInner(*widget) || IsPutAway(*widget)) continue;
    CheckText(*widget, unfit);
    const QWidget* parent = widget->parentWidget();
    if (!parent->rect().contains(widget->geometry()) && !qobject_cast<const QAbstractScrollArea*>(parent->parent()))
      unfit.push_back((Named(*widget) + " sticks out of " + Named(*parent)).toStdString());
    if (!parent->layout()) continue;
    for (const QObject* object : parent->children()) {
      const auto* other = qobject_cast<const QWidget*>(object);
      if (!other || other <= widget || !other->isVisible() || other->isWindow() || IsInner(*other)) continue;
      if (parent->layout()->indexOf(other) < 0 || parent->layout()->indexOf(widget) < 0) continue;
      if (widget->geometry().intersects(other->geometry()))
        unfit.push_back((Named(*widget) + " covers " + Named(*other)).toStdString());
    }
  }
}

QChar MnemonicOf(const QString& text) {
  const QKeySequence keys = QKeySequence::mnemonic(text);
  return keys.isEmpty() ? QChar() : QChar(keys[0].key());
}

// The keys of the actions of one menu.
void CheckMnemonics(const QString& where, const QList<QAction*>& actions, std::vector<std::string>& bad) {
  QMap<QChar, QString> known;
  for (const QAction* action : actions) {
    if (action->isSeparator()) continue;
    const QChar key = MnemonicOf(action->text());
    if (key.isNull())
      bad.push_back((where + ": no key for " + action->text()).toStdString());
    else if (known.contains(key))
      bad.push_back((where + ": one key for " + known[key] + " and " + action->text()).toStdString());
    known[key] = action->text();
  }
}

}  // namespace

std::string LayoutText(QWidget& window) {
  Writer writer;
  writer.Widget(window, 0);
  writer.Line(0, TabOrder(window));
  return writer.Text();
}

std::string LayoutText(QMainWindow& window) {
  Writer writer;
  writer.Line(0, Named(window));
  for (const QAction* menu : window.menuBar()->actions()) {
    writer.Line(1, "menu " + ActionText(*menu));
    for (const QAction* action : menu->menu()->actions()) writer.Line(2, ActionText(*action));
  }
  for (const QToolBar* bar : window.findChildren<QToolBar*>()) {
    writer.Line(1, "toolbar \"" + bar->windowTitle() + "\"" + (bar->isMovable() ? " movable" : ""));
    for (const QAction* action : bar->actions())
      writer.Line(2, action->isSeparator() ? "-" : ActionText(*action) + " \"" + action->toolTip() + "\"");
  }
  writer.Line(1, "centre " + Described(*window.centralWidget()));
  for (QDockWidget* dock : window.findChildren<QDockWidget*>()) {
    writer.Line(1, SideOf(window.dockWidgetArea(dock)) + " " + Described(*dock));
    for (const QDockWidget* other : window.tabifiedDockWidgets(dock))
      writer.Line(2, "shares its place with " + Named(*other));
    writer.Widget(*dock->widget(), 2);
  }
  writer.Line(1, "status bar");
  for (const QLabel* label : window.statusBar()->findChildren<QLabel*>()) writer.Line(2, Described(*label));
  writer.Line(0, TabOrder(window));
  return writer.Text();
}

std::vector<std::string> FindUnfit(QWidget& window) {
  std::vector<std::string> unfit;
  CheckPlaces(window, unfit);
  return unfit;
}

std::vector<std::string> FindBadKeys(QMainWindow& window) {
  std::vector<std::string> bad;
  CheckMnemonics("menu bar", window.menuBar()->actions(), bad);
  QMap<QString, QString> shortcuts;
  for (const QAction* menu : window.menuBar()->actions()) {
    CheckMnemonics(menu->text(), menu->menu()->actions(), bad);
    for (const QAction* action : menu->menu()->actions()) {
      const QString keys = action->shortcut().toString(QKeySequence::PortableText);
      if (keys.isEmpty()) continue;
      if (shortcuts.contains(keys))
        bad.push_back((keys + " is that of " + shortcuts[keys] + " and " + action->text()).toStdString());
      shortcuts[keys] = action->text();
    }
  }
  return bad;
}

}  // namespace corvane::desk
