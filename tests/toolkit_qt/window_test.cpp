// Windows and what is done to them on Qt's own widgets.
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include "tests/toolkit_qt/window_fixture.h"
#include "toolkit_qt/menu.h"
#include "toolkit_qt/units.h"

namespace corvane::toolkit_qt {
namespace {

using Window = WindowTest;
using Strings = std::vector<std::string>;

TEST_F(Window, ClientAreaIsWhatTheFormSays) {
  Show();
  QWidget* window = toolkit.WindowOf(form);
  ASSERT_TRUE(window && window->isVisible());
  EXPECT_EQ(window->width(), Pixels(form.ScaleWidth()));
  EXPECT_EQ(window->height(), Pixels(form.ScaleHeight()));
}

TEST_F(Window, MenuBarTakesItsHeightFromTheForm) {
  const auto height = form.ScaleHeight();
  forms::Menu file(form, "mnuFile", "&File"), open(file, "mnuOpen", "&Open");
  EXPECT_EQ(height - form.ScaleHeight(), TwipsOf(MenuBar::kHeight));
  Show();
  auto* bar = toolkit.WindowOf(form)->findChild<QMenuBar*>();
  ASSERT_TRUE(bar && bar->isVisible());
  EXPECT_EQ(bar->height(), MenuBar::kHeight);
  EXPECT_EQ(toolkit.WindowOf(form)->height(), Pixels(form.ScaleHeight()) + MenuBar::kHeight);
}

TEST_F(Window, WhatHasTheFocusShowsIt) {
  forms::TextBox text(form, "txt");
  forms::OptionButton option(form, "opt");
  forms::CheckBox check(form, "chk");
  forms::CommandButton button(form, "cmd");
  option.SetCaption("o");
  check.SetCaption("c");
  button.SetCaption("b");
  option.Move(0, 600, 1500, 300);
  check.Move(0, 1200, 1500, 300);
  button.Move(0, 1800, 1500, 450);
  Show();
  for (forms::Control* control : std::initializer_list<forms::Control*>{&option, &check, &button}) {
    const QImage before = WidgetOf(*control).grab().toImage();
    Press(Qt::Key_Tab);
    ASSERT_TRUE(WidgetOf(*control).hasFocus()) << control->Name();
    EXPECT_NE(WidgetOf(*control).grab().toImage(), before) << control->Name();
  }
}

TEST_F(Window, ResizingByTheUserReachesTheFormOnce) {
  Show();
  int resized = 0;
  form.Resize = [&] { ++resized; };
  QWidget* window = toolkit.WindowOf(form);
  window->resize(window->width() + 40, window->height() + 20);
  QCoreApplication::processEvents();
  EXPECT_EQ(resized, 1);
  EXPECT_EQ(form.Width(), 6000 + 600);
  EXPECT_EQ(form.Height(), 4500 + 300);
}

TEST_F(Window, ResizingByCodeIsNotReportedAsAnAct) {
  Show();
  int resized = 0;
  form.Resize = [&] { ++resized; };
  form.Move(300, 300, 7503, 5007);
  QCoreApplication::processEvents();
  EXPECT_EQ(resized, 1);
  EXPECT_EQ(form.Width(), 7503);
}

TEST_F(Window, ClosingAsksTheFormAndTheFormMayRefuse) {
  Show();
  bool refuse = true;
  form.QueryUnload = [&](bool& cancel, forms::UnloadMode mode) {
    EXPECT_EQ(mode, forms::UnloadMode::ControlMenu);
    cancel = refuse;
  };
  toolkit.WindowOf(form)->close();
  EXPECT_TRUE(form.IsLoaded());
  EXPECT_TRUE(toolkit.WindowOf(form)->isVisible());
  refuse = false;
  toolkit.WindowOf(form)->close();
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(Window, WindowStateGoesBothWays) {
  Show();
  form.SetWindowState(forms::vbMaximized);
  QCoreApplication::processEvents();
  EXPECT_TRUE(toolkit.WindowOf(form)->isMaximized());
  toolkit.WindowOf(form)->showNormal();
  QCoreApplication::processEvents();
  EXPECT_EQ(form.WindowState(), forms::vbNormal);
}

TEST_F(Window, ModalWindowReturnsWhenItIsUnloaded) {
  forms::CommandButton ok(form, "cmdOk");
  ok.Click = [&] {
    told.push_back("click");
    form.Unload();
  };
  QTimer::singleShot(0, [&] {
    EXPECT_EQ(toolkit.WindowOf(form)->windowModality(), Qt::ApplicationModal);
    Click(WidgetOf(ok));
  });
  form.ShowModal();
  EXPECT_EQ(told, Strings{"click"});
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(Window, ModalWindowReturnsWhenItIsHiddenAndKeepsItsValues) {
  forms::TextBox box(form, "txt");
  QTimer::singleShot(0, [&] {
    Type("ab");
    form.Hide();
  });
  form.ShowModal();
  EXPECT_TRUE(form.IsLoaded());
  EXPECT_EQ(box.Text(), "ab");
}

TEST_F(Window, FaultOfAHandlerIsToldAndDoesNotLeave) {
  forms::CommandButton button(form, "cmd");
  button.Click = [] { throw runtime::Error(91); };
  Show();
  Click(WidgetOf(button));
  ASSERT_EQ(faults.size(), 1u);
  EXPECT_EQ(faults[0], runtime::DescriptionOf(91));
}

TEST_F(Window, ControlsThatTouchInTwipsTouchInPixels) {
  forms::Label first(form, "lbl1"), second(form, "lbl2"), third(form, "lbl3");
  first.Move(7, 0, 1003, 200);
  second.Move(1010, 0, 1001, 200);
  third.Move(2011, 0, 998, 200);
  Show();
  EXPECT_EQ(WidgetOf(first).geometry().right() + 1, WidgetOf(second).x());
  EXPECT_EQ(WidgetOf(second).geometry().right() + 1, WidgetOf(third).x());
}

TEST_F(Window, TextGoesThroughTheCodePageBothWays) {
  forms::TextBox box(form, "txt");
  box.SetText("caf\xE9");
  Show();
  auto& edit = dynamic_cast<QLineEdit&>(WidgetOf(box));
  EXPECT_EQ(edit.text(), QString::fromUtf8("café"));
  edit.setCursorPosition(4);
  Press(Qt::Key_Udiaeresis, Qt::NoModifier, QString::fromUtf8("ü"));
  EXPECT_EQ(box.Text(), "caf\xE9\xFC");
  EXPECT_EQ(box.SelStart(), 5);
}

TEST_F(Window, TypingRaisesKeyDownKeyPressChangeKeyUp) {
  forms::TextBox box(form, "txt");
  Show();
  box.KeyDown = [&](int& key, int) { told.push_back("down " + std::to_string(key)); };
  box.KeyPress = [&](int& key) { told.push_back("press " + std::to_string(key)); };
  box.KeyUp = [&](int& key, int) { told.push_back("up " + std::to_string(key)); };
  box.Change = [&] { told.push_back("change " + box.Text()); };
  Type("a");
  EXPECT_EQ(told, (Strings{"down 65", "press 97", "change a", "up 65"}));
}

TEST_F(Window, KeyThatAHandlerCancelsDoesNotReachTheText) {
  forms::TextBox box(form, "txt");
  box.KeyPress = [](int& key) {
    if (key == 'x') key = 0;
    if (key == 'a') key = 'B';
  };
  Show();
  Type("axc");
  EXPECT_EQ(box.Text(), "Bc");
}

TEST_F(Window, KeyPreviewAsksTheFormFirst) {
  forms::TextBox box(form, "txt");
  form.SetKeyPreview(true);
  form.KeyDown = [&](int& key, int shift) {
    told.push_back("form " + std::to_string(key) + " " + std::to_string(shift));
    key = 0;
  };
  box.KeyDown = [&](int&, int) { told.push_back("box"); };
  Show();
  Press(Qt::Key_F5, Qt::ShiftModifier | Qt::ControlModifier);
  EXPECT_EQ(told, Strings{"form 116 3"});
}

TEST_F(Window, TextSetByCodeIsShownAndNotReportedAsAnEdit) {
  forms::TextBox box(form, "txt");
  Show();
  int changes = 0;
  box.Change = [&] { ++changes; };
  box.SetText("abc");
  EXPECT_EQ(dynamic_cast<QLineEdit&>(WidgetOf(box)).text(), "abc");
  EXPECT_EQ(changes, 1);
  box.SetSelStart(1);
  box.SetSelLength(2);
  EXPECT_EQ(dynamic_cast<QLineEdit&>(WidgetOf(box)).selectedText(), "bc");
}

TEST_F(Window, LinesOfATextBoxEndInCrLf) {
  forms::TextBox box(form, "txt");
  box.SetMultiLine(true);
  box.Move(0, 0, 3000, 1500);
  box.SetText("one\r\ntwo");
  Show();
  auto& edit = dynamic_cast<QPlainTextEdit&>(WidgetOf(box));
  EXPECT_EQ(edit.toPlainText(), "one\ntwo");
  edit.moveCursor(QTextCursor::End);
  QCoreApplication::processEvents();
  EXPECT_EQ(box.SelStart(), 8);
  Press(Qt::Key_Return, Qt::NoModifier, "\r");
  Type("z");
  EXPECT_EQ(box.Text(), "one\r\ntwo\r\nz");
  EXPECT_EQ(box.SelStart(), 11);
}

TEST_F(Window, LockedTextTakesNoKeys) {
  forms::TextBox box(form, "txt");
  box.SetLocked(true);
  box.SetText("abc");
  Show();
  Type("x");
  EXPECT_EQ(box.Text(), "abc");
}

TEST_F(Window, ButtonTellsMouseDownClickMouseUp) {
  forms::CommandButton button(form, "cmd");
  button.MouseDown = [&](int, int, forms::Twips, forms::Twips) { told.push_back("down"); };
  button.MouseUp = [&](int, int, forms::Twips, forms::Twips) { told.push_back("up"); };
  button.Click = [&] { told.push_back("click"); };
  Show();
  Click(WidgetOf(button));
  EXPECT_EQ(told, (Strings{"down", "click", "up"}));
}

TEST_F(Window, LabelTellsMouseDownMouseUpClick) {
  forms::Label label(form, "lbl");
  label.MouseDown = [&](int button, int shift, forms::Twips x, forms::Twips y) {
    told.push_back("down " + std::to_string(button) + " " + std::to_string(shift));
    EXPECT_EQ(x, 75);
    EXPECT_EQ(y, 45);
  };
  label.MouseUp = [&](int, int, forms::Twips, forms::Twips) { told.push_back("up"); };
  label.Click = [&] { told.push_back("click"); };
  Show();
  Click(WidgetOf(label), {5, 3}, Qt::RightButton, Qt::ControlModifier);
  EXPECT_EQ(told, (Strings{"down 2 2", "up", "click"}));
}

TEST_F(Window, CheckBoxShowsWhatItsControlSays) {
  forms::CheckBox box(form, "chk");
  box.Click = [&] { told.push_back(std::to_string(box.Value())); };
  Show();
  auto& shown = dynamic_cast<QAbstractButton&>(WidgetOf(box));
  Click(shown, {8, shown.height() / 2});
  EXPECT_EQ(told, Strings{"1"});
  EXPECT_TRUE(shown.isChecked());
  box.SetValue(forms::vbUnchecked);
  EXPECT_FALSE(shown.isChecked());
}

TEST_F(Window, WholePlaceOfAnOptionTakesTheClick) {
  forms::OptionButton option(form, "opt");
  option.SetCaption("x");
  option.Move(0, 0, 3000, 300);
  Show();
  Click(WidgetOf(option), {190, 10});
  EXPECT_TRUE(option.Value());
}

TEST_F(Window, KeyThatAControlLeavesAloneIsNotToldToWhatHoldsIt) {
  forms::Frame frame(form, "fra");
  forms::PictureBox picture(frame, "pic");
  picture.KeyDown = [&](int&, int) { told.push_back("picture"); };
  frame.KeyDown = [&](int&, int) { told.push_back("frame"); };
  Show();
  Press(Qt::Key_F8);
  EXPECT_EQ(told, Strings{"picture"});
}

TEST_F(Window, OptionButtonsShowTheOneThatIsChosen) {
  forms::OptionButton first(form, "opt", 0), second(form, "opt", 1);
  second.Move(0, 600, 1200, 300);
  first.SetValue(true);
  Show();
  Click(WidgetOf(second), {8, 10});
  EXPECT_FALSE(dynamic_cast<QAbstractButton&>(WidgetOf(first)).isChecked());
  EXPECT_TRUE(dynamic_cast<QAbstractButton&>(WidgetOf(second)).isChecked());
  Click(WidgetOf(second), {8, 10});
  EXPECT_TRUE(dynamic_cast<QAbstractButton&>(WidgetOf(second)).isChecked());
}

TEST_F(Window, TabMovesTheFocusByTabIndex) {
  forms::TextBox first(form, "txt1"), second(form, "txt2");
  first.SetTabIndex(1);
  Show();
  EXPECT_TRUE(second.HasFocus());
  Press(Qt::Key_Tab, Qt::NoModifier, "\t");
  EXPECT_TRUE(first.HasFocus());
  EXPECT_EQ(toolkit.WindowOf(form)->focusWidget(), &WidgetOf(first));
}

TEST_F(Window, ClickMovesTheFocusAndValidateMayKeepIt) {
  forms::TextBox first(form, "txt1"), second(form, "txt2");
  second.Move(0, 900, 1200, 300);
  bool keep = true;
  first.Validate = [&](bool& cancel) { cancel = keep; };
  Show();
  ASSERT_TRUE(first.HasFocus());
  WidgetOf(second).setFocus(Qt::MouseFocusReason);
  EXPECT_TRUE(first.HasFocus());
  EXPECT_EQ(toolkit.WindowOf(form)->focusWidget(), &WidgetOf(first));
  keep = false;
  WidgetOf(second).setFocus(Qt::MouseFocusReason);
  EXPECT_TRUE(second.HasFocus());
}

TEST_F(Window, AFocusedBoxThatIsMadeAgainKeepsTheKeys) {
  forms::TextBox other(form, "txtOther"), box(form, "txt");
  Show();
  box.SetFocus();
  box.SetMultiLine(true);
  QCoreApplication::processEvents();
  EXPECT_EQ(toolkit.WindowOf(form)->focusWidget(), &WidgetOf(box));
  Type("a");
  EXPECT_EQ(box.Text(), "a");
}

TEST_F(Window, ItemsAndFormMayGoWhileTheirMenuIsOpen) {
  forms::Menu popup(form, "mnuPop", "pop"), sub(popup, "mnuSub", "Sub");
  auto item = std::make_unique<forms::Menu>(sub, "mnuItem", "Item");
  popup.SetVisible(false);
  sub.Click = [&] { told.push_back("sub"); };
  item->Click = [&] { told.push_back("item"); };
  Show();
  QTimer::singleShot(1, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QMenu* inner = menu->actions().at(0)->menu();
    emit inner->aboutToShow();
    ASSERT_EQ(inner->actions().size(), 1);
    item.reset();
    inner->actions().at(0)->trigger();
    form.Unload();
    emit inner->aboutToShow();
    menu->close();
  });
  form.PopupMenu(popup, 300, 300);
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(told, (Strings{"sub"}));
  EXPECT_EQ(faults, Strings{});
}

TEST_F(Window, EnterAndEscPressTheirButtonsWithoutKeyEvents) {
  forms::TextBox box(form, "txt");
  forms::CommandButton ok(form, "ok"), cancel(form, "cancel");
  ok.SetDefault(true);
  cancel.SetCancel(true);
  ok.Click = [&] { told.push_back("ok"); };
  cancel.Click = [&] { told.push_back("cancel"); };
  box.KeyDown = [&](int&, int) { told.push_back("key"); };
  Show();
  Press(Qt::Key_Return, Qt::NoModifier, "\r");
  Press(Qt::Key_Escape);
  EXPECT_EQ(told, (Strings{"ok", "cancel"}));
}

TEST_F(Window, ScrollBarTellsScrollWhileDraggedAndChangeAtTheEnd) {
  forms::VScrollBar bar(form, "vs");
  bar.Move(0, 0, 255, 3000);
  bar.SetMax(100);
  bar.Scroll = [&] { told.push_back("scroll " + std::to_string(bar.Value())); };
  bar.Change = [&] { told.push_back("change " + std::to_string(bar.Value())); };
  Show();
  auto& shown = dynamic_cast<QScrollBar&>(WidgetOf(bar));
  shown.setSliderDown(true);
  shown.setSliderPosition(40);
  shown.setSliderDown(false);
  shown.triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_EQ(told, (Strings{"scroll 40", "change 40", "change 41"}));
  told.clear();
  bar.SetValue(7);
  EXPECT_EQ(shown.value(), 7);
  EXPECT_EQ(told, Strings{"change 7"});
}

TEST_F(Window, TimerTicksWhileItIsEnabled) {
  forms::Timer timer(form, "tmr");
  timer.SetInterval(1);
  QEventLoop loop;
  int ticks = 0;
  timer.Tick = [&] {
    if (++ticks < 3) return;
    timer.SetEnabled(false);
    loop.quit();
  };
  Show();
  QTimer::singleShot(5000, &loop, &QEventLoop::quit);
  if (ticks < 3) loop.exec();
  EXPECT_EQ(ticks, 3);
}

TEST_F(Window, ControlMayEndItsFormInsideItsOwnClick) {
  for (auto way : {"button", "list", "picture", "text"}) {
    forms::Form window(toolkit, "frmOther");
    forms::CommandButton button(window, "cmd");
    forms::ListBox list(window, "lst");
    list.Move(0, 600, 3000, 1500);
    list.AddItem("row");
    forms::PictureBox picture(window, "pic");
    forms::TextBox text(window, "txt");
    button.Click = list.Click = picture.Click = text.Change = [&] { window.Unload(); };
    window.Show();
    QCoreApplication::processEvents();
    if (way == std::string("button")) Click(WidgetOf(button));
    if (way == std::string("list")) Click(WidgetOf(list), {20, 8});
    if (way == std::string("picture")) Click(*WidgetOf(picture).focusProxy(), {5, 5});
    if (way == std::string("text")) {
      QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
      QApplication::sendEvent(&WidgetOf(text), &event);
    }
    EXPECT_FALSE(window.IsLoaded()) << way;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
  EXPECT_TRUE(faults.empty());
}

TEST_F(Window, RunTimeControlAppearsInItsContainer) {
  forms::Frame frame(form, "fra");
  frame.Move(600, 600, 3000, 3000);
  Show();
  forms::Control& label = form.AddControl("VB.Label", "lbl", frame);
  EXPECT_TRUE(WidgetOf(label).isHidden());
  label.Move(150, 300, 600, 195);
  label.SetVisible(true);
  EXPECT_TRUE(WidgetOf(label).isVisible());
  EXPECT_EQ(WidgetOf(label).parentWidget(), &WidgetOf(frame));
  EXPECT_EQ(WidgetOf(label).geometry(), QRect(10, 20, 40, 13));
  form.RemoveControl(label);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(WidgetOf(frame).findChildren<QWidget*>().isEmpty());
}

TEST_F(Window, PopupMenuShowsItsItemsAndClicksTheChosenOne) {
  forms::Menu popup(form, "mnuPop", "pop"), first(popup, "mnuFirst", "&First"), line(popup, "mnuLine", "-"),
      hidden(popup, "mnuHidden", "Hidden"), second(popup, "mnuSecond", "Second");
  popup.SetVisible(false);
  hidden.SetVisible(false);
  second.SetChecked(true);
  second.Click = [&] { told.push_back("second"); };
  Show();
  QTimer::singleShot(0, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    ASSERT_EQ(menu->actions().size(), 3);
    EXPECT_TRUE(menu->actions()[1]->isSeparator());
    EXPECT_TRUE(menu->actions()[2]->isChecked());
    menu->setActiveAction(menu->actions()[2]);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(menu, &enter);
  });
  form.PopupMenu(popup, 300, 300);
  EXPECT_EQ(told, Strings{"second"});
}

// A window of its own with a popup menu, and what [act] does to it while the menu is open.
void WhilePopupIsOpen(QtToolkit& toolkit, const std::function<void(std::unique_ptr<forms::Form>&)>& act) {
  auto window = std::make_unique<forms::Form>(toolkit, "frmOther");
  auto popup = std::make_unique<forms::Menu>(*window, "mnuPop", "pop");
  auto more = std::make_unique<forms::Menu>(*popup, "mnuMore", "More");
  auto deep = std::make_unique<forms::Menu>(*more, "mnuDeep", "Deep");
  popup->SetVisible(false);
  deep->Click = [] { FAIL() << "of a window that is gone"; };
  window->Show();
  QCoreApplication::processEvents();
  QPointer<QMenu> shown;
  QTimer::singleShot(0, [&] {
    shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(shown);
    QMenu* sub = shown->actions()[0]->menu();
    act(window);
    deep.reset(), more.reset();
    if (shown) emit sub->aboutToShow();
    if (shown && !sub->actions().isEmpty()) sub->actions()[0]->trigger();
  });
  QObject here;  // with it the clock stops
  QTimer::singleShot(2000, &here, [&] {
    if (shown) shown->close();
  });
  QElapsedTimer clock;
  clock.start();
  window->PopupMenu(*popup, 300, 300);
  EXPECT_LT(clock.elapsed(), 1500) << "the menu goes with its window";
}

TEST_F(Window, AFormUnloadedWhileItsMenuIsOpenGoes) {
  WhilePopupIsOpen(toolkit, [](auto& window) { window->Unload(); });
  EXPECT_TRUE(faults.empty());
}

TEST_F(Window, MenuBarEntriesAreReadWhenTheyOpen) {
  forms::Menu file(form, "mnuFile", "&File"), open(file, "mnuOpen", "&Open");
  open.SetShortcut("^O");
  open.Click = [&] { told.push_back("open"); };
  Show();
  open.SetCaption("Open &more");
  auto* bar = toolkit.WindowOf(form)->findChild<QMenuBar*>();
  QMenu* menu = bar->actions()[0]->menu();
  emit menu->aboutToShow();
  ASSERT_EQ(menu->actions().size(), 1);
  EXPECT_EQ(menu->actions()[0]->text(), "Open &more\tCtrl+O");
  menu->actions()[0]->trigger();
  EXPECT_EQ(told, Strings{"open"});
  told.clear();
  Press(Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(told, Strings{"open"});
}

TEST_F(Window, WindowMayGoBeforeItsNewMenuTitlesAreShown) {
  forms::Menu file(form, "mnuFile", "&File"), open(file, "mnuOpen", "&Open");
  Show();
  file.SetCaption("&Other");
  form.Unload();
  QCoreApplication::processEvents();
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(Window, ToolbarButtonsAndDropDownsTellTheirPositions) {
  forms::ImageList images(form, "img");
  forms::Toolbar bar(form, "tb");
  bar.Move(0, 0, 6000, 420);
  bar.SetImageList(&images);
  forms::ToolButton go, line, more;
  go.ToolTipText = "Go there";
  line.Style = forms::ToolButtonStyle::Separator;
  more.Caption = "More";
  more.Style = forms::ToolButtonStyle::DropDown;
  more.ButtonMenus = {{"a", "First"}, {"b", "Second"}};
  for (const auto& button : {go, line, more}) bar.Add(button);
  bar.ButtonClick = [&](int position) { told.push_back("click " + std::to_string(position)); };
  bar.ButtonDropDown = [&](int position) { told.push_back("drop " + std::to_string(position)); };
  bar.ButtonMenuClick = [&](int position, int entry) {
    told.push_back("menu " + std::to_string(position) + " " + std::to_string(entry));
  };
  Show();
  auto& shown = dynamic_cast<QToolBar&>(WidgetOf(bar));
  ASSERT_EQ(shown.actions().size(), 3);
  EXPECT_EQ(shown.actions()[0]->toolTip(), "Go there");
  shown.actions()[0]->trigger();
  QMenu* menu = shown.actions()[2]->menu();
  emit menu->aboutToShow();
  ASSERT_EQ(menu->actions().size(), 2);
  menu->actions()[1]->trigger();
  EXPECT_EQ(told, (Strings{"click 1", "drop 3", "menu 3 2"}));
  bar.SetButtonEnabled(1, false);
  EXPECT_FALSE(shown.actions()[0]->isEnabled());
}

TEST_F(Window, ToolWindowStaysInFrontOfTheParentWindow) {
  QWidget desk;
  desk.show();
  toolkit.SetParentWindow(&desk);
  Show();
  EXPECT_EQ(toolkit.WindowOf(form)->parentWidget(), &desk);
  EXPECT_TRUE(toolkit.WindowOf(form)->isWindow());
  form.Unload();
}

TEST_F(Window, ParentWindowMayGoFirst) {
  auto desk = std::make_unique<QWidget>();
  desk->show();
  toolkit.SetParentWindow(desk.get());
  forms::TextBox box(form, "txt");
  forms::ListBox list(form, "lst");
  forms::PictureBox picture(form, "pic");
  Show();
  desk.reset();
  box.SetText("later");
  list.AddItem("later");
  picture.Cls();
  form.SetCaption("later");
  form.Unload();
  EXPECT_TRUE(faults.empty());
}

}  // namespace
}  // namespace corvane::toolkit_qt
