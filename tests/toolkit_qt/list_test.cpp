// List boxes and combo boxes on the screen.
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>

#include "tests/toolkit_qt/window_fixture.h"
#include "toolkit_qt/list_view.h"

namespace corvane::toolkit_qt {
namespace {

using Strings = std::vector<std::string>;

class Lists : public WindowTest {
 protected:
  Lists() { list.Move(150, 150, 3000, 2010); }
  void Fill(int count) {
    for (int row = 0; row < count; ++row) list.AddItem("row " + std::to_string(row));
  }
  ListView& View() { return dynamic_cast<ListView&>(WidgetOf(list)); }
  void ClickRow(long row, Qt::KeyboardModifiers held = Qt::NoModifier, int x = 40) {
    const int y = 1 + static_cast<int>(row - View().TopRow()) * View().RowHeight() + View().RowHeight() / 2;
    Click(View(), {x, y}, Qt::LeftButton, held);
  }
  forms::ListBox list{form, "lst"};
};

TEST_F(Lists, RowHeightIsThatOfTheFont) {
  Fill(3);
  Show();
  EXPECT_EQ(View().RowHeight(), 13);
}

TEST_F(Lists, ClickSelectsBetweenMouseDownAndMouseUp) {
  Fill(5);
  list.MouseDown = [&](int, int, forms::Twips, forms::Twips) { told.push_back("down"); };
  list.MouseUp = [&](int, int, forms::Twips, forms::Twips) { told.push_back("up"); };
  list.Click = [&] { told.push_back("click " + list.Text()); };
  Show();
  ClickRow(2);
  EXPECT_EQ(told, (Strings{"down", "click row 2", "up"}));
}

TEST_F(Lists, ClickBehindTheLastRowSelectsNothing) {
  Fill(2);
  list.Click = [&] { told.push_back("click"); };
  Show();
  Click(View(), {40, View().height() - 5});
  EXPECT_TRUE(told.empty());
  EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(Lists, SecondPressOfADoubleClickIsDblClickAlone) {
  Fill(3);
  list.Click = [&] { told.push_back("click"); };
  list.DblClick = [&] { told.push_back("dblclick"); };
  Show();
  ClickRow(1);
  const QPoint place(40, 1 + View().RowHeight() + 5);
  SendMouse(View(), QEvent::MouseButtonDblClick, place);
  SendMouse(View(), QEvent::MouseButtonRelease, place);
  EXPECT_EQ(told, (Strings{"click", "dblclick"}));
}

TEST_F(Lists, ASecondQuickClickTicksAgainOnABoxAlone) {
  list.SetStyle(1);
  Fill(3);
  list.DblClick = [&] { told.push_back("dblclick"); };
  list.ItemCheck = [&](long row) { told.push_back("check " + std::to_string(row)); };
  Show();
  const auto again = [&](int x) {
    const QPoint place(x, 1 + View().RowHeight() + 5);
    SendMouse(View(), QEvent::MouseButtonDblClick, place);
    SendMouse(View(), QEvent::MouseButtonRelease, place);
  };
  ClickRow(1, Qt::NoModifier, 6);
  again(6);
  EXPECT_FALSE(list.Selected(1));
  EXPECT_EQ(told, (Strings{"check 1", "dblclick", "check 1"}));
  told.clear();
  again(40);
  EXPECT_EQ(told, (Strings{"dblclick"}));
}

TEST_F(Lists, ASecondQuickClickSelectsAgainWhereEachClickToggles) {
  list.SetMultiSelect(1);
  Fill(3);
  Show();
  ClickRow(1);
  EXPECT_TRUE(list.Selected(1));
  const QPoint place(40, 1 + View().RowHeight() + 5);
  SendMouse(View(), QEvent::MouseButtonDblClick, place);
  SendMouse(View(), QEvent::MouseButtonRelease, place);
  EXPECT_FALSE(list.Selected(1));
}

TEST_F(Lists, KeysMoveTheSelection) {
  Fill(100);
  list.SetListIndex(0);
  Show();
  const struct {
    int key;
    long row;
  } steps[] = {{Qt::Key_Down, 1}, {Qt::Key_Up, 0},    {Qt::Key_Up, 0},  {Qt::Key_PageDown, View().RowsInView() - 1},
               {Qt::Key_End, 99}, {Qt::Key_Down, 99}, {Qt::Key_Home, 0}};
  for (const auto& [key, row] : steps) {
    Press(key);
    EXPECT_EQ(list.ListIndex(), row) << key;
  }
}

TEST_F(Lists, LetterGoesToTheNextRowThatBeginsWithIt) {
  for (auto text : {"alpha", "beta", "Bravo", "gamma"}) list.AddItem(text);
  Show();
  Type("b");
  EXPECT_EQ(list.Text(), "beta");
  Type("b");
  EXPECT_EQ(list.Text(), "Bravo");
  Type("b");
  EXPECT_EQ(list.Text(), "beta");
}

TEST_F(Lists, SelectionByCodeScrollsIntoViewWithoutScrollEvent) {
  Fill(100);
  list.Scroll = [&] { told.push_back("scroll"); };
  Show();
  list.SetListIndex(50);
  EXPECT_LE(View().TopRow(), 50);
  EXPECT_GT(View().TopRow() + View().RowsInView(), 50);
  EXPECT_EQ(list.TopIndex(), View().TopRow());
  EXPECT_TRUE(told.empty());
}

TEST_F(Lists, TopIndexEndsOnTheLastPage) {
  Fill(100);
  Show();
  list.SetTopIndex(99);
  EXPECT_EQ(list.TopIndex(), 100 - View().RowsInView());
}

TEST_F(Lists, TheLastRowWithABoxCanBeReached) {
  list.SetStyle(1);
  list.SetHeight(1500);
  Fill(100);
  Show();
  list.SetListIndex(99);
  EXPECT_EQ(View().TopRow(), 100 - View().RowsInView());
  list.SetTopIndex(10);
  EXPECT_EQ(View().TopRow(), 10);
}

TEST_F(Lists, AHandlerMayUnloadTheFormWhileRowsAreMarked) {
  list.SetMultiSelect(2);
  Fill(6);
  Show();
  ClickRow(0);
  list.Click = [this] { form.Unload(); };
  ClickRow(4, Qt::ShiftModifier);
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(list.SelCount(), 5);
  EXPECT_EQ(faults, Strings{});
}

TEST_F(Lists, HundredThousandRowsCostOnlyThoseInView) {
  for (int row = 0; row < 100000; ++row) list.AddItem("row");
  Show();
  list.SetListIndex(99999);
  QElapsedTimer clock;
  clock.start();
  View().repaint();
  EXPECT_EQ(View().TopRow(), 100000 - View().RowsInView());
  EXPECT_LT(clock.elapsed(), 200);
}

TEST_F(Lists, CheckBoxIsTickedBesideTheText) {
  list.SetStyle(1);
  Fill(3);
  list.ItemCheck = [&](long row) { told.push_back("check " + std::to_string(row)); };
  list.Click = [&] { told.push_back("click"); };
  Show();
  ClickRow(1, Qt::NoModifier, 8);
  EXPECT_TRUE(list.Selected(1));
  EXPECT_EQ(told, (Strings{"check 1", "click"}));
  ClickRow(2);
  EXPECT_FALSE(list.Selected(2));
  Press(Qt::Key_Space, Qt::NoModifier, " ");
  EXPECT_TRUE(list.Selected(2));
}

TEST_F(Lists, SimpleMultiSelectionTurnsRowsOneByOne) {
  list.SetMultiSelect(1);
  Fill(5);
  Show();
  ClickRow(1);
  ClickRow(3);
  EXPECT_TRUE(list.Selected(1) && list.Selected(3));
  ClickRow(1);
  EXPECT_FALSE(list.Selected(1));
}

TEST_F(Lists, DropDownListChoosesARow) {
  forms::ComboBox combo(form, "cmb");
  combo.SetStyle(2);
  for (auto text : {"one", "two", "three"}) combo.AddItem(text);
  combo.Click = [&] { told.push_back("click " + combo.Text()); };
  Show();
  auto& shown = dynamic_cast<QComboBox&>(WidgetOf(combo));
  EXPECT_FALSE(shown.isEditable());
  EXPECT_EQ(shown.count(), 3);
  combo.SetFocus();
  Press(Qt::Key_Down);
  Press(Qt::Key_Down);
  EXPECT_EQ(told, (Strings{"click one", "click two"}));
  combo.SetListIndex(2);
  EXPECT_EQ(shown.currentText(), "three");
}

TEST_F(Lists, ComboTextTypedRaisesChangeAndKeepsTheRowsAway) {
  forms::ComboBox combo(form, "cmb");
  combo.AddItem("one");
  combo.Change = [&] { told.push_back("change " + combo.Text()); };
  combo.Click = [&] { told.push_back("click " + combo.Text()); };
  Show();
  combo.SetFocus();
  Type("ab");
  EXPECT_EQ(told, (Strings{"change a", "change ab"}));
  EXPECT_EQ(combo.ListIndex(), -1);
  told.clear();
  combo.SetListIndex(0);
  EXPECT_EQ(told, Strings{"click one"});
  EXPECT_EQ(dynamic_cast<QComboBox&>(WidgetOf(combo)).lineEdit()->text(), "one");
}

TEST_F(Lists, RowsAddedWhenTheListDropsDownAreThere) {
  forms::ComboBox combo(form, "cmb");
  combo.SetStyle(2);
  combo.DropDown = [&] { combo.AddItem("late"); };
  Show();
  auto& shown = dynamic_cast<QComboBox&>(WidgetOf(combo));
  shown.showPopup();
  EXPECT_EQ(shown.count(), 1);
  shown.hidePopup();
}

TEST_F(Lists, SimpleComboHasAnOpenList) {
  forms::ComboBox combo(form, "cmb");
  combo.SetStyle(1);
  combo.Move(3300, 150, 1500, 1500);
  for (auto text : {"one", "two"}) combo.AddItem(text);
  combo.Click = [&] { told.push_back("click " + combo.Text()); };
  Show();
  auto* edit = WidgetOf(combo).findChild<QLineEdit*>();
  ListView* view = nullptr;
  for (auto* child : WidgetOf(combo).findChildren<QWidget*>()) {
    if (auto* found = dynamic_cast<ListView*>(child)) view = found;
  }
  ASSERT_TRUE(view && edit);
  Click(*view, {20, 1 + view->RowHeight() + 3});
  EXPECT_EQ(told, Strings{"click two"});
  EXPECT_EQ(edit->text(), "two");
}

}  // namespace
}  // namespace corvane::toolkit_qt
