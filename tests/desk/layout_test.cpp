// The desk's own windows: their layouts as goldens, and that nothing in them is cut off or covered by the fonts of this
// machine, at 100 % and at 125 %.
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <gmock/gmock.h>

#include "desk/add_in_manager.h"
#include "desk/ansi_text.h"
#include "desk/code_pane.h"
#include "desk/designer_window.h"
#include "desk/find_dialog.h"
#include "desk/property_list.h"
#include "desk/qt_services.h"
#include "tests/desk/desk_fixture.h"
#include "tests/desk/widget_layout.h"
#include "tests/support/golden.h"

namespace corvane::desk {
namespace {

using testing::IsEmpty;
using tests::MatchesGolden;

class DeskLayout : public DeskTest {
 protected:
  void Show(QWidget& window) {
    window.show();
    Settle();
  }
  void ExpectFits(QWidget& window, const char* what) { EXPECT_THAT(FindUnfit(window), IsEmpty()) << what; }
};

TEST_F(DeskLayout, MainWindow) {
  EXPECT_TRUE(MatchesGolden(LayoutText(*window_), "desk/main_window.layout"));
  EXPECT_THAT(FindBadKeys(*window_), IsEmpty());
}

TEST_F(DeskLayout, CodePaneAndDesigner) {
  CodePane* pane = window_->OpenCode(Module("frmStock"));
  Settle();
  EXPECT_TRUE(MatchesGolden(LayoutText(static_cast<QWidget&>(*pane)), "desk/code_pane.layout"));
  ExpectFits(*window_, "with a code pane");
  DesignerWindow* designer = window_->OpenDesigner(Module("frmStock"));
  designer->Canvas().Select({0});
  Settle();
  ExpectFits(*window_, "with a designer");
}

// Logical pixels of the controls, as the file gives them, those of a container below it from front to back; and the
// properties of the first.
QString DesignerText(const Layout& layout, const QTableWidget& properties) {
  const auto numbers = [](const QRectF& box) {
    return QString("%1 %2 %3 %4").arg(box.x()).arg(box.y()).arg(box.width()).arg(box.height());
  };
  QString text = QString("form \"%1\" %2 x %3\n")
                     .arg(layout.caption.c_str())
                     .arg(layout.client.width())
                     .arg(layout.client.height());
  const auto write = [&](const auto& self, int container, int depth) -> void {
    std::vector<int> order = layout.FrontToBack(container);
    for (const int at : layout.Inside(container))
      if (layout.controls[at].IsMenu()) order.push_back(at);
    for (const int at : order) {
      const PlacedControl& control = layout.controls[at];
      const QString said = control.IsMenu() ? "\"" + ToLabel(control.caption) + "\"" : numbers(control.place);
      text += QString(2 * depth, ' ') + ToLabel(control.class_name + " " + control.name) + " " + said + "\n";
      self(self, at, depth + 1);
    }
  };
  write(write, -1, 1);
  for (int row = 0; row < properties.rowCount(); ++row)
    text += properties.item(row, 0)->text() + "=" + properties.item(row, 1)->text() + "\n";
  return text;
}

TEST_F(DeskLayout, DesignerWithItsProperties) {
  DesignerCanvas& canvas = window_->OpenDesigner(Module("frmStock"))->Canvas();
  canvas.Select({0});
  Settle();
  EXPECT_TRUE(MatchesGolden(DesignerText(canvas.LayoutOf(), window_->Properties().Table()).toStdString(),
                            "desk/designer.layout"));
  for (size_t at = 0; at < canvas.LayoutOf().controls.size(); ++at) {
    const PlacedControl& control = canvas.LayoutOf().controls[at];
    EXPECT_TRUE(control.IsMenu() || QRectF(canvas.rect()).contains(canvas.BoxOf(static_cast<int>(at)))) << control.name;
  }
}

TEST_F(DeskLayout, WhatWasNotUnderstoodFits) {
  files_.Put("C:\\Odd\\Odd.vbp", "Type=Exe\r\nModule=gone; gone.bas\r\nName=\"Odd\"\r\n");
  environment_->Open("C:\\Odd\\Odd.vbp");
  window_->ShowProject();
  Settle();
  ExpectFits(*window_, "with problems");
}

TEST_F(DeskLayout, AWindowMadeSmallKeepsItsTexts) {
  window_->OpenCode(Module("modStock"));
  window_->resize(700, 500);
  Settle();
  ExpectFits(*window_, "small");
}

TEST_F(DeskLayout, EveryNameOfAPropertyCanBeRead) {
  files_.Put("C:\\Work\\c.ctl", "VERSION 5.00\r\nBegin VB.UserControl ctl \r\nEnd\r\nAttribute VB_Name = \"ctl\"\r\n");
  environment_->ActiveVBProject()->VBComponents()->AddFile("C:\\Work\\c.ctl");
  for (const char* name : {"frmStock", "ctl"}) {
    window_->OpenDesigner(Module(name))->Canvas().Select({});
    Settle();
    const QTableWidget& table = window_->Properties().Table();
    ASSERT_GT(table.rowCount(), 20) << name;
    for (int row = 0; row < table.rowCount(); ++row)
      EXPECT_LE(table.fontMetrics().horizontalAdvance(table.item(row, 0)->text()) + 6, table.columnWidth(0))
          << table.item(row, 0)->text().toStdString();
    EXPECT_LE(table.fontMetrics().height(), table.rowHeight(0));
    EXPECT_GE(table.columnWidth(1), table.columnWidth(0) / 2) << "the values have room, too";
  }
}

TEST_F(DeskLayout, Find) {
  FindDialog find(window_.get());
  find.Ask("Total");
  Settle();
  EXPECT_TRUE(MatchesGolden(LayoutText(static_cast<QWidget&>(find)), "desk/find.layout"));
  ExpectFits(find, "Find");
}

TEST_F(DeskLayout, AddInManager) {
  desk::AddInManager manager({true, false}, window_.get());
  Show(manager);
  EXPECT_TRUE(MatchesGolden(LayoutText(static_cast<QWidget&>(manager)), "desk/add_in_manager.layout"));
  ExpectFits(manager, "Add-In Manager");
}

TEST_F(DeskLayout, TheQuestionOnLeaving) {
  const QtServices services;
  QStringList buttons;
  std::vector<std::string> unfit = {"the box was not open"};
  QTimer::singleShot(0, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_TRUE(box);
    Settle();
    for (const QAbstractButton* button : box->buttons())
      buttons << button->text() + (button == box->defaultButton() ? " default" : "");
    unfit = FindUnfit(*box);
    box->close();
  });
  services.Prompts().MsgBox("Save the changes to these files?\r\n\r\n    C:\\Work\\modStock.bas",
                            host::vbYesNoCancel | host::vbExclamation, {});
  buttons.sort();
  EXPECT_EQ(buttons.join(", "), "&No, &Yes default, Cancel");
  EXPECT_THAT(unfit, IsEmpty());
}

// The checks themselves: a window in which everything is wrong.
TEST(DeskLayoutChecks, FindWhatDoesNotFit) {
  QMainWindow window;
  auto* inside = new QWidget;
  auto* layout = new QVBoxLayout(inside);
  auto* label = new QLabel("a label");
  auto* first = new QPushButton("a button");
  auto* second = new QPushButton("b");
  for (QWidget* widget : std::initializer_list<QWidget*>{label, first, second}) layout->addWidget(widget);
  window.setCentralWidget(inside);
  window.menuBar()->addMenu("&File")->addAction("&Open")->setShortcut(QKeySequence("Ctrl+O"));
  window.show();
  Settle();
  EXPECT_THAT(FindUnfit(window), IsEmpty());
  EXPECT_THAT(FindBadKeys(window), IsEmpty());
  label->resize(5, label->height());
  first->resize(8, first->height());
  second->move(first->pos());
  auto* menu = window.menuBar()->addMenu("F&ile");
  menu->addAction("&New")->setShortcut(QKeySequence("Ctrl+O"));
  menu->addAction("&Next");
  menu->addAction("Plain");
  window.menuBar()->addMenu("&Find");
  const std::vector<std::string> unfit = FindUnfit(window), bad = FindBadKeys(window);
  EXPECT_THAT(unfit, testing::UnorderedElementsAre("Label \"a label\" is wider than its place",
                                                   "PushButton \"a button\" does not fit its button",
                                                   testing::AnyOf("PushButton \"a button\" covers PushButton \"b\"",
                                                                  "PushButton \"b\" covers PushButton \"a button\"")));
  EXPECT_THAT(bad, testing::ElementsAre("menu bar: one key for &File and &Find", "F&ile: one key for &New and &Next",
                                        "F&ile: no key for Plain", "Ctrl+O is that of &Open and &New"));
  second->move(second->x(), inside->height());
  EXPECT_THAT(FindUnfit(window), testing::Contains(testing::HasSubstr("\"b\" sticks out of ")));
}

// The scale of the display is chosen when a program starts: the tests above run again in one of their own.
TEST(DeskLayoutAtScale, HoldsAt125Percent) {
  QProcess again;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QT_SCALE_FACTOR", "1.25");
  again.setProcessEnvironment(environment);
  again.setProcessChannelMode(QProcess::MergedChannels);
  again.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=DeskLayout.*"});
  ASSERT_TRUE(again.waitForFinished(120000));
  const std::string output = again.readAll().toStdString();
  EXPECT_EQ(again.exitCode(), 0) << output;
  EXPECT_NE(output.find("[  PASSED  ]"), std::string::npos) << output;
}

}  // namespace
}  // namespace corvane::desk
