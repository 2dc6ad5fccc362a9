// The contract suite on Qt, with the user's hand on Qt's own widgets.
#include <QAbstractButton>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTimer>
#include <QToolBar>

#include "tests/forms/forms_contract.h"
#include "tests/toolkit_qt/hand.h"
#include "toolkit_qt/list_view.h"
#include "toolkit_qt/peer.h"
#include "toolkit_qt/texts.h"
#include "toolkit_qt/toolkit.h"
#include "toolkit_qt/units.h"

namespace corvane::toolkit_qt {
namespace {

struct KeyName {
  int code, qt;
  const char* text;
};

constexpr KeyName kKeys[] = {
    {forms::vbKeyBack, Qt::Key_Backspace, "\b"},
    {forms::vbKeyTab, Qt::Key_Tab, "\t"},
    {forms::vbKeyReturn, Qt::Key_Return, "\r"},
    {forms::vbKeyEscape, Qt::Key_Escape, "\x1b"},
    {forms::vbKeySpace, Qt::Key_Space, " "},
    {forms::vbKeyPageUp, Qt::Key_PageUp, ""},
    {forms::vbKeyPageDown, Qt::Key_PageDown, ""},
    {forms::vbKeyEnd, Qt::Key_End, ""},
    {forms::vbKeyHome, Qt::Key_Home, ""},
    {forms::vbKeyLeft, Qt::Key_Left, ""},
    {forms::vbKeyUp, Qt::Key_Up, ""},
    {forms::vbKeyRight, Qt::Key_Right, ""},
    {forms::vbKeyDown, Qt::Key_Down, ""},
    {forms::vbKeyDelete, Qt::Key_Delete, ""},
};

QString Plain(QString caption) {
  return caption.remove('&').section('\t', 0, 0);
}

QAction* ActionOf(const QList<QAction*>& actions, const std::string& caption) {
  for (QAction* action : actions) {
    if (Plain(action->text()) == ShownText(caption)) return action;
  }
  return nullptr;
}

Qt::MouseButton QtButton(int button) {
  return button == forms::vbRightButton ? Qt::RightButton : Qt::LeftButton;
}

class QtDriver : public forms::ContractDriver {
 public:
  forms::Toolkit& Toolkit() override { return toolkit_; }
  void Settle() override {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }

  void Click(forms::Control& control, forms::Twips x, forms::Twips y, int button) override {
    const Spot spot = SpotOf(control, x, y);
    SendClick(*spot.widget, spot.place, QtButton(button));
  }
  void DblClick(forms::Control& control, forms::Twips x, forms::Twips y) override {
    const Spot spot = SpotOf(control, x, y);
    SendClick(*spot.widget, spot.place);
    SendMouse(*spot.widget, QEvent::MouseButtonDblClick, spot.place);
    SendMouse(*spot.widget, QEvent::MouseButtonRelease, spot.place);
  }
  void MoveOver(forms::Control& control, forms::Twips x, forms::Twips y) override {
    const Spot spot = SpotOf(control, x, y);
    SendMouse(*spot.widget, QEvent::MouseMove, spot.place);
  }
  void Press(forms::Form& form, int key_code, int shift) override {
    Qt::KeyboardModifiers held;
    if (shift & forms::vbShiftMask) held |= Qt::ShiftModifier;
    if (shift & forms::vbCtrlMask) held |= Qt::ControlModifier;
    if (shift & forms::vbAltMask) held |= Qt::AltModifier;
    for (const KeyName& key : kKeys) {
      if (key.code != key_code) continue;
      const bool back = key_code == forms::vbKeyTab && (shift & forms::vbShiftMask);
      return SendKey(toolkit_.WindowOf(form), back ? Qt::Key_Backtab : key.qt, held, key.text);
    }
    SendKey(toolkit_.WindowOf(form), key_code, held, held & ~Qt::ShiftModifier ? QString() : QString(QChar(key_code)));
  }
  void Type(forms::Form& form, const std::string& text) override {
    SendText(toolkit_.WindowOf(form), toolkit_qt::ShownText(text));
  }

  void ChooseRow(forms::ListControl& list, long row) override {
    QWidget* widget = toolkit_.WidgetOf(list);
    if (auto* combo = qobject_cast<QComboBox*>(widget)) return ChooseDropped(*combo, static_cast<int>(row));
    auto& view = dynamic_cast<ListView&>(*widget);
    Settle();
    view.Follow(row);
    const int y = 1 + static_cast<int>(row - view.TopRow()) * view.RowHeight() + view.RowHeight() / 2;
    SendClick(view, {30, y});
  }
  void Scroll(forms::ScrollBar& bar, long value) override {
    qobject_cast<QScrollBar*>(toolkit_.WidgetOf(bar))->setValue(static_cast<int>(value));
  }
  void DragThumb(forms::ScrollBar& bar, const std::vector<long>& places) override {
    auto* shown = qobject_cast<QScrollBar*>(toolkit_.WidgetOf(bar));
    shown->setSliderDown(true);
    for (long place : places) shown->setSliderPosition(static_cast<int>(place));
    shown->setSliderDown(false);
  }
  void ChooseMenu(forms::Form& form, const std::vector<std::string>& captions) override {
    QList<QAction*> actions = toolkit_.WindowOf(form)->findChild<QMenuBar*>()->actions();
    for (const std::string& caption : captions) {
      QAction* action = ActionOf(actions, caption);
      if (!action || !action->isEnabled()) return;
      if (!action->menu()) return action->trigger();
      emit action->menu()->aboutToShow();
      actions = action->menu()->actions();
    }
  }
  void ClickToolButton(forms::Toolbar& bar, int position) override {
    QWidget* button = ToolButton(bar, position);
    SendClick(*button, {8, button->height() / 2});
  }
  void ChooseToolMenu(forms::Toolbar& bar, int position, int entry) override {
    QMenu* menu = qobject_cast<QToolBar*>(toolkit_.WidgetOf(bar))->actions().at(position - 1)->menu();
    emit menu->aboutToShow();
    menu->actions().at(entry - 1)->trigger();
  }
  void Close(forms::Form& form) override { toolkit_.WindowOf(form)->close(); }

  void InModal(forms::Form& form, std::function<void()> act) override {
    QTimer::singleShot(1, &context_,
                       [this, &form, act = std::move(act)] { form.Visible() ? act() : InModal(form, act); });
  }
  void OnPopup(const std::string& caption) override {
    QTimer::singleShot(1, &context_, [this, caption] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (!menu) return OnPopup(caption);
      QAction* action = caption.empty() ? nullptr : ActionOf(menu->actions(), caption);
      if (!action) return static_cast<void>(menu->close());
      menu->setActiveAction(action);
      QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
      QApplication::sendEvent(menu, &enter);
    });
  }
  void Wait(int milliseconds) override {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
  }

  // Labels and frames paint their captions themselves, and tell them to screen readers.
  std::optional<std::string> ShownText(forms::Control& control) override {
    QWidget* widget = toolkit_.WidgetOf(control);
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) return BytesOf(button->text());
    if (auto* edit = qobject_cast<QLineEdit*>(widget)) return BytesOf(edit->text());
    if (auto* edit = qobject_cast<QPlainTextEdit*>(widget)) return BytesOfLines(edit->toPlainText());
    if (auto* combo = qobject_cast<QComboBox*>(widget)) return BytesOf(combo->currentText());
    return BytesOf(widget->accessibleName());
  }
  std::optional<bool> IsOnScreen(forms::Control& control) override {
    QWidget* widget = toolkit_.WidgetOf(control);
    return widget && widget->isVisible() && !widget->visibleRegion().isEmpty();
  }
  std::optional<forms::Color> PixelAt(forms::PictureBox& box, forms::Twips x, forms::Twips y) override {
    const QColor pixel = InsideOf(box)->grab().toImage().pixelColor(Pixels(x), Pixels(y));
    return forms::RGB(pixel.red(), pixel.green(), pixel.blue());
  }
  std::optional<bool> IsRowWhollyShown(forms::ListBox& list, long row) override {
    const auto& view = dynamic_cast<ListView&>(*toolkit_.WidgetOf(list));
    const long top = (row - view.TopRow()) * view.RowHeight();
    return top >= 0 && top + view.RowHeight() <= view.height() - 2;
  }

 private:
  struct Spot {
    QWidget* widget;
    QPoint place;
  };
  // The widget that lies there: a control inside, or a part of the control's own.
  Spot SpotOf(forms::Control& control, forms::Twips x, forms::Twips y) {
    auto* base = dynamic_cast<WidgetPeer&>(*control.Peer()).Inside();
    const QPoint place(Pixels(x), Pixels(y));
    QWidget* hit = base->childAt(place);
    return hit ? Spot{hit, hit->mapFrom(base, place)} : Spot{base, place};
  }
  void ChooseDropped(QComboBox& combo, int row) {
    combo.showPopup();
    QListView& view = *qobject_cast<QListView*>(combo.view());
    view.setCurrentIndex(combo.model()->index(row, 0));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(&view, &enter);
    QCoreApplication::processEvents();
  }
  QWidget* ToolButton(forms::Toolbar& bar, int position) {
    auto* shown = qobject_cast<QToolBar*>(toolkit_.WidgetOf(bar));
    return shown->widgetForAction(shown->actions().at(position - 1));
  }

  QtToolkit toolkit_;
  QObject context_;
};

std::unique_ptr<forms::ContractDriver> NewQtDriver() {
  return std::make_unique<QtDriver>();
}

}  // namespace
}  // namespace corvane::toolkit_qt

namespace corvane::forms {

INSTANTIATE_TEST_SUITE_P(Qt, FormsContract, testing::Values(DriverFactory(toolkit_qt::NewQtDriver)));

}  // namespace corvane::forms
