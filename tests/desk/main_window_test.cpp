#include "desk/main_window.h"

#include <QApplication>
#include <QDockWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QTimer>
#include <QToolBar>

#include "desk/code_pane.h"
#include "desk/designer_window.h"
#include "desk/find_dialog.h"
#include "desk/project_tree.h"
#include "desk/property_list.h"
#include "tests/desk/desk_fixture.h"

namespace corvane::desk {
namespace {

using MainWindowTest = DeskTest;

std::vector<QString> TreeTexts(ProjectTree& tree) {
  std::vector<QString> texts;
  for (QTreeWidgetItemIterator at(&tree); *at; ++at) texts.push_back((*at)->text(0));
  return texts;
}

TEST_F(MainWindowTest, TheTreeShowsTheComponentsByKind) {
  EXPECT_EQ(TreeTexts(window_->Tree()), (std::vector<QString>{"Stock (Stock.vbp)", "Forms", "frmStock (frmStock.frm)",
                                                              "Modules", "modStock (modStock.bas)"}));
}

TEST_F(MainWindowTest, AnEditPutsAStarOnTheComponentAndAMarkInTheTitle) {
  EXPECT_FALSE(window_->isWindowModified());
  EXPECT_EQ(window_->windowTitle(), "Stock[*] - Corvane");
  Module("modStock")->CodeModule()->InsertLines(1, "' new");
  EXPECT_TRUE(window_->isWindowModified());
  EXPECT_EQ(TreeTexts(window_->Tree()).back(), "modStock (modStock.bas) *");
}

TEST_F(MainWindowTest, WhatTheAddInShowsComesToTheFront) {
  window_->OpenCode(Module("frmStock"));
  Module("modStock")->CodeModule()->CodePane()->SetSelection({5, 1, 5, 1});
  Module("modStock")->CodeModule()->CodePane()->Show();
  Settle();
  ASSERT_TRUE(window_->ActiveModule());
  EXPECT_EQ(window_->ActiveModule()->Name(), "modStock");
  EXPECT_EQ(window_->PaneOf(*Module("modStock"))->Editor().textCursor().blockNumber(), 4);
  EXPECT_EQ(environment_->SelectedVBComponent()->Name(), "modStock");
  EXPECT_EQ(environment_->ActiveCodePane()->CodeModule()->Name(), "modStock");
}

class JumpTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    code_ = Module("modStock")->CodeModule();
    std::string lines = "' line";
    for (int line = 1; line < 300; ++line) lines += "\r\n' line";
    code_->InsertLines(1, lines);
  }
  // As the explorer does it.
  void Jump(long line) {
    code_->CodePane()->SetSelection({line, 1, line, 1});
    code_->CodePane()->Show();
    Settle();
  }
  CodeEditor& Editor() { return window_->PaneOf(*Module("modStock"))->Editor(); }
  // Of the lines shown in the pane, from its middle.
  double LinesFromTheMiddle() {
    const QRect cursor = Editor().cursorRect();
    return std::abs(cursor.center().y() - Editor().viewport()->height() / 2.0) / cursor.height();
  }
  host::Ref<host::CodeModule> code_;
};

TEST_F(JumpTest, ALineFarDownStandsInTheMiddleOfANewPane) {
  Jump(200);
  EXPECT_EQ(Editor().textCursor().blockNumber(), 199);
  EXPECT_LE(LinesFromTheMiddle(), 1.5);
}

TEST_F(JumpTest, ALineOutOfSightStandsInTheMiddleOfAnOpenPane) {
  window_->OpenCode(Module("modStock"));
  Settle();
  for (long line : {200, 60, 260}) {
    Jump(line);
    EXPECT_LE(LinesFromTheMiddle(), 1.5) << line;
  }
}

TEST_F(JumpTest, ALineInSightStaysWhereItIs) {
  Jump(200);
  const int top = Editor().verticalScrollBar()->value();
  Jump(203);
  EXPECT_EQ(Editor().verticalScrollBar()->value(), top);
}

TEST_F(JumpTest, TheLineStaysInTheMiddleWhileTheNewPaneFindsItsSize) {
  auto* pane = new CodePane(Module("modStock"));
  pane->resize(300, 120);
  Module("modStock")->UserSelection({200, 1, 200, 1});
  pane->SelectionSet();
  pane->resize(500, 700);
  pane->show();
  Settle();
  const QRect cursor = pane->Editor().cursorRect();
  EXPECT_LE(std::abs(cursor.center().y() - pane->Editor().viewport()->height() / 2.0) / cursor.height(), 1.5);
  delete pane;
}

TEST_F(MainWindowTest, TheNumberOfTheLastLineStandsAsThatOfAnyOther) {
  CodeEditor editor;
  editor.resize(300, 200);
  // Where the ink of the second number begins.
  const auto top_of_second = [&](const char* text) {
    editor.setPlainText(text);
    const QImage gutter = editor.grab(QRect(0, 0, editor.GutterWidth(), 100)).toImage();
    for (int y = editor.cursorRect().bottom() + 1; y < gutter.height(); ++y)
      for (int x = 0; x < gutter.width(); ++x)
        if (gutter.pixel(x, y) != gutter.pixel(0, 0)) return y;
    return -1;
  };
  const int between = top_of_second("a\nb\n");
  EXPECT_GT(between, 0);
  EXPECT_EQ(top_of_second("a\nb"), between);
}

TEST_F(MainWindowTest, ThePropertyListNamesTheComponentAndItsClass) {
  window_->OpenCode(Module("modStock"));
  EXPECT_EQ(window_->Properties().Title(), "modStock  Module");
  window_->OpenDesigner(Module("frmStock"));
  window_->DesignerOf(*Module("frmStock"))->Canvas().Select({});
  Settle();
  EXPECT_EQ(window_->Properties().Title(), "frmStock  Form");
}

TEST_F(MainWindowTest, F10OpensTheFirstMenu) {
  for (QShortcut* shortcut : window_->findChildren<QShortcut*>())
    if (shortcut->key() == QKeySequence(Qt::Key_F10)) emit shortcut->activated();
  QMenu* first = window_->menuBar()->actions().front()->menu();
  EXPECT_TRUE(first->isVisible());
  first->close();
}

TEST_F(MainWindowTest, NoTwoButtonsOfTheToolbarHaveOnePicture) {
  std::vector<QImage> seen;
  for (const QAction* action : window_->findChild<QToolBar*>("Standard")->actions()) {
    if (action->isSeparator()) continue;
    const QImage picture = action->icon().pixmap(16, 16).toImage();
    EXPECT_EQ(std::find(seen.begin(), seen.end(), picture), seen.end()) << action->text().toStdString();
    seen.push_back(picture);
  }
  EXPECT_GT(seen.size(), 5u);
}

// The texts of the menu that the tree opens at its current row; what is disabled in brackets.
std::vector<QString> MenuOf(ProjectTree& tree) {
  std::vector<QString> texts;
  QTimer::singleShot(0, &tree, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) return;
    for (const QAction* action : menu->actions())
      if (!action->isSeparator()) texts.push_back(action->isEnabled() ? action->text() : "[" + action->text() + "]");
    menu->close();
  });
  emit tree.customContextMenuRequested(tree.visualItemRect(tree.currentItem()).center());
  return texts;
}

TEST_F(MainWindowTest, ARelatedDocumentHasNothingToSave) {
  files_.Put("C:\\Work\\Noted.vbp",
             "Type=Exe\r\nRelatedDoc=notes.txt\r\nModule=modNote; modNote.bas\r\nName=\"Noted\"\r\n");
  files_.Put("C:\\Work\\modNote.bas", "Attribute VB_Name = \"modNote\"\r\nOption Explicit\r\n");
  files_.Put("C:\\Work\\notes.txt", "words");
  environment_->Open("C:\\Work\\Noted.vbp");
  window_->ShowProject();
  ProjectTree& tree = window_->Tree();
  const struct {
    const char* text;
    bool has_code;
    std::vector<QString> menu;
  } kCases[] = {{"modNote", true, {"View &Code", "[View O&bject]", "&Save modNote"}},
                {"notes.txt", false, {"[View &Code]", "[View O&bject]", "[&Save notes.txt]"}},
                {"modNote", true, {"View &Code", "[View O&bject]", "&Save modNote"}}};
  for (const auto& c : kCases) {
    const auto items = tree.findItems(c.text, Qt::MatchContains | Qt::MatchRecursive);
    ASSERT_EQ(items.size(), 1) << c.text;
    tree.setCurrentItem(items.front());
    Settle();
    EXPECT_EQ(window_->Command("code")->isEnabled(), c.has_code) << c.text;
    EXPECT_EQ(window_->Command("save")->isEnabled(), c.has_code) << c.text;
    EXPECT_EQ(MenuOf(tree), c.menu);
  }
}

TEST_F(MainWindowTest, ClosingAPaneTakesItFromTheEnvironment) {
  window_->OpenCode(Module("modStock"));
  EXPECT_TRUE(Module("modStock")->HasPane());
  window_->Command("close")->trigger();
  Settle();
  EXPECT_FALSE(Module("modStock")->HasPane());
  EXPECT_FALSE(window_->PaneOf(*Module("modStock")));
  EXPECT_FALSE(environment_->ActiveCodePane());
}

TEST_F(MainWindowTest, APaneTheAddInClosesGoes) {
  window_->OpenCode(Module("modStock"));
  Module("modStock")->CodeModule()->CodePane()->Window()->Close();
  Settle();
  EXPECT_FALSE(window_->PaneOf(*Module("modStock")));
}

TEST_F(MainWindowTest, TheDesignerWindowOpensAndClosesWithTheEnvironments) {
  Module("frmStock")->DesignerWindow()->SetFocus();
  Settle();
  ASSERT_TRUE(window_->DesignerOf(*Module("frmStock")));
  EXPECT_TRUE(Module("frmStock")->HasOpenDesigner());
  Module("frmStock")->DesignerWindow()->Close();
  Settle();
  EXPECT_FALSE(window_->DesignerOf(*Module("frmStock")));
  EXPECT_FALSE(Module("frmStock")->HasOpenDesigner());
}

TEST_F(MainWindowTest, TheImmediateWindowFollowsTheEnvironments) {
  auto* dock = window_->findChild<QDockWidget*>("immediate");
  const auto immediate = environment_->Windows()->Item(std::string("Immediate"));
  immediate->Close();
  EXPECT_FALSE(dock->isVisible());
  immediate->SetFocus();
  Settle();
  EXPECT_TRUE(dock->isVisible());
}

TEST_F(MainWindowTest, AComponentTheAddInAddsAndRenamesIsInTheTree) {
  const auto added = environment_->ActiveVBProject()->VBComponents()->Add(host::ComponentType::ClassModule);
  added->SetName("clsNew");
  const auto texts = TreeTexts(window_->Tree());
  EXPECT_NE(std::find_if(texts.begin(), texts.end(), [](const auto& t) { return t.startsWith("clsNew"); }),
            texts.end());
}

TEST_F(MainWindowTest, AnAddInsButtonStandsInItsPlaceAndItsClickArrives) {
  const auto controls = environment_->CommandBars()->Item(std::string("Standard"))->Controls();
  const auto button = controls->Add(host::ControlType::Button, controls->Count());
  button->SetCaption("Try &it");
  int clicks = 0;
  const auto bound = environment_->Events()->CommandBarEvents(button)->OnClick([&](auto&, bool&, bool&) { ++clicks; });
  Settle();
  const environment::Bar* bar = environment_->Bars().Find("Standard");
  long id = 0;
  for (const auto& control : bar->controls)
    if (control.caption == "Try &it") id = control.id;
  ASSERT_TRUE(window_->ActionOf(id));
  EXPECT_EQ(window_->ActionOf(id)->toolTip(), "Try it");
  window_->ActionOf(id)->trigger();
  EXPECT_EQ(clicks, 1);
  button->Delete();
  Settle();
  EXPECT_FALSE(window_->ActionOf(id));
}

TEST_F(MainWindowTest, StartTellsTheAddInThatRunModeBegins) {
  int starts = 0;
  const auto bound = environment_->Events()->VBBuildEvents()->OnEnterRunMode([&] { ++starts; });
  window_->Command("start")->trigger();
  EXPECT_EQ(starts, 1);
}

TEST_F(MainWindowTest, WhatWasNotUnderstoodIsListedAndOnlyThen) {
  auto* dock = window_->findChild<QDockWidget*>("problems");
  EXPECT_FALSE(dock->isVisible());
  files_.Put("C:\\Odd\\Odd.vbp", "Type=Exe\r\nModule=gone; gone.bas\r\nName=\"Odd\"\r\n");
  environment_->Open("C:\\Odd\\Odd.vbp");
  window_->ShowProject();
  EXPECT_TRUE(dock->isVisible());
  ASSERT_EQ(window_->ProblemList().topLevelItemCount(), 1);
  EXPECT_EQ(window_->ProblemList().topLevelItem(0)->text(1), "2");
  EXPECT_TRUE(window_->ProblemList().topLevelItem(0)->text(2).contains("gone.bas"));
}

TEST_F(MainWindowTest, WhatADesignerFindsWrongIsListedAtOnce) {
  auto* dock = window_->findChild<QDockWidget*>("problems");
  files_.Put("C:\\Work\\frmOdd.frm",
             "VERSION 5.00\r\nBegin VB.Form frmOdd \r\n   Icon            =   \"frmOdd.frx\":0100\r\nEnd\r\n"
             "Attribute VB_Name = \"frmOdd\"\r\n");
  files_.Put("C:\\Work\\frmOdd.frx", "abc");
  environment_->ActiveVBProject()->VBComponents()->AddFile("C:\\Work\\frmOdd.frm");
  Settle();
  EXPECT_FALSE(dock->isVisible());
  EXPECT_FALSE(window_->Command("view-problems")->isEnabled());
  window_->OpenDesigner(Module("frmOdd"));
  Settle();
  ASSERT_EQ(window_->ProblemList().topLevelItemCount(), 1);
  const QTreeWidgetItem& row = *window_->ProblemList().topLevelItem(0);
  EXPECT_EQ(row.text(0), "C:\\Work\\frmOdd.frm");
  EXPECT_EQ(row.text(1), "3");
  EXPECT_TRUE(row.text(2).contains("frmOdd.frx")) << row.text(2).toStdString();
  EXPECT_TRUE(dock->isVisible());
  EXPECT_TRUE(window_->Command("view-problems")->isEnabled());
}

TEST_F(MainWindowTest, AListThatWasClosedStaysSoUntilSomethingNewIsFound) {
  auto* dock = window_->findChild<QDockWidget*>("problems");
  files_.Put("C:\\Odd\\Odd.vbp", "Type=Exe\r\nModule=gone; gone.bas\r\nName=\"Odd\"\r\n");
  environment_->Open("C:\\Odd\\Odd.vbp");
  Settle();
  ASSERT_TRUE(dock->isVisible());
  dock->hide();
  window_->OpenDesigner(Module("frmStock"));
  Settle();
  EXPECT_FALSE(dock->isVisible());
}

TEST_F(MainWindowTest, NoButtonThatWasOnTheToolbarStaysBehind) {
  auto* bar = window_->findChild<QToolBar*>("Standard");
  const auto button =
      environment_->CommandBars()->Item(std::string("Standard"))->Controls()->Add(host::ControlType::Button, 1);
  Settle();
  const auto count = [&] { return bar->findChildren<QAction*>().size(); };
  const auto before = count(), of_window = window_->findChildren<QAction*>().size();
  for (int caption = 0; caption < 10; ++caption) {
    button->SetCaption(std::to_string(caption));
    Settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  EXPECT_EQ(count(), before);
  EXPECT_EQ(window_->findChildren<QAction*>().size(), of_window);
}

TEST_F(MainWindowTest, AGroupOfProjectsIsShownAsOne) {
  files_.Put("C:\\Odd\\Odd.vbp", "Type=Exe\r\nName=\"Odd\"\r\n");
  environment_->Open("C:\\Odd\\Odd.vbp");
  window_->ShowProject();
  EXPECT_EQ(TreeTexts(window_->Tree()).front(), "Project Group");
}

TEST_F(MainWindowTest, ARenamedComponentIsCalledSoInThePropertyList) {
  window_->OpenDesigner(Module("frmStock"));
  Settle();
  QTableWidget& table = window_->Properties().Table();
  table.item(table.findItems("Name", Qt::MatchExactly).first()->row(), 1)->setText("frmGoods");
  Settle();
  EXPECT_EQ(window_->Properties().Title(), "frmGoods  Form");
  EXPECT_EQ(TreeTexts(window_->Tree())[2], "frmGoods (frmStock.frm) *");
}

TEST_F(MainWindowTest, ThePropertyListLetsGoOfAComponentThatIsRemoved) {
  window_->Tree().ShowSelected(*Module("modStock"));
  emit window_->Tree().Selected(Module("modStock"));
  ASSERT_EQ(window_->Properties().Title(), "modStock  Module");
  environment_->ActiveVBProject()->VBComponents()->Remove(Module("modStock"));
  Settle();
  EXPECT_EQ(window_->Properties().Title(), "");
  EXPECT_EQ(window_->Properties().Table().rowCount(), 0);
}

TEST_F(MainWindowTest, UndoIsThatOfThePaneInFrontWhereverTheFocusIs) {
  CodePane* first = window_->OpenCode(Module("frmStock"));
  first->Editor().insertPlainText("' one\n");
  CodePane* second = window_->OpenCode(Module("modStock"));
  second->Editor().insertPlainText("' two\n");
  window_->Tree().setFocus();
  Settle();
  ASSERT_TRUE(window_->Command("undo")->isEnabled());
  window_->Command("undo")->trigger();
  EXPECT_EQ(Module("modStock")->CodeModule()->Lines(1, 1), "Option Explicit");
  EXPECT_EQ(Module("frmStock")->CodeModule()->Lines(1, 1), "' one");
  window_->Command("redo")->trigger();
  EXPECT_EQ(Module("modStock")->CodeModule()->Lines(1, 1), "' two");
}

TEST_F(MainWindowTest, TheTitleNamesTheProjectThatIsWorkedOn) {
  files_.Put("C:\\Odd\\Odd.vbp", "Type=Exe\r\nName=\"Odd\"\r\n");
  environment_->Open("C:\\Odd\\Odd.vbp");
  window_->ShowProject();
  ASSERT_EQ(window_->windowTitle(), "Odd[*] - Corvane");
  emit window_->Tree().ProjectWanted(environment_->Projects()[0]);
  EXPECT_EQ(environment_->ActiveVBProject()->Name(), "Stock");
  EXPECT_EQ(window_->windowTitle(), "Stock[*] - Corvane");
}

TEST_F(MainWindowTest, ASearchThatFindsNothingLeavesThePlaceAsItIs) {
  CodePane* pane = window_->OpenCode(Module("modStock"));
  Module("modStock")->CodeModule()->CodePane()->SetSelection({5, 5, 5, 10});
  std::vector<long> lines;
  QObject::connect(&pane->Editor(), &QPlainTextEdit::cursorPositionChanged,
                   [&] { lines.push_back(Module("modStock")->PaneSelection().start_line); });
  EXPECT_FALSE(pane->FindNext("nowhere", false, false));
  EXPECT_EQ(lines, std::vector<long>());
  EXPECT_EQ(pane->Editor().textCursor().selectedText(), "Total");
  EXPECT_TRUE(pane->FindNext("option", false, false)) << "from the top again";
  EXPECT_EQ(pane->Editor().textCursor().blockNumber(), 0);
}

TEST_F(MainWindowTest, TheProjectOfWhatIsChosenInTheTreeOrShownInFrontIsTheActiveOne) {
  files_.Put("C:\\Odd\\Odd.vbp", "Type=Exe\r\nModule=modOdd; modOdd.bas\r\nName=\"Odd\"\r\n");
  files_.Put("C:\\Odd\\modOdd.bas", "Attribute VB_Name = \"modOdd\"\r\n");
  environment_->Open("C:\\Odd\\Odd.vbp");
  window_->ShowProject();
  const auto active = [&] { return environment_->ActiveVBProject()->Name(); };
  ASSERT_EQ(active(), "Odd");
  ProjectTree& tree = window_->Tree();
  tree.setCurrentItem(tree.findItems("modStock", Qt::MatchStartsWith | Qt::MatchRecursive).first());
  EXPECT_EQ(active(), "Stock");
  tree.setCurrentItem(tree.findItems("Odd (", Qt::MatchStartsWith | Qt::MatchRecursive).first());
  EXPECT_EQ(active(), "Odd");
  EXPECT_TRUE(tree.currentItem()->font(0).bold());
  window_->OpenCode(Module("modStock"));
  EXPECT_EQ(active(), "Stock");
  EXPECT_EQ(window_->windowTitle(), "Stock[*] - Corvane");
}

TEST_F(MainWindowTest, AWindowOfOneOfSeveralProjectsNamesItsProjectAndASharedFileIsAskedAboutOnce) {
  EXPECT_EQ(window_->OpenCode(Module("modStock"))->windowTitle(), "modStock (Code)");
  files_.Put("C:\\Work\\Odd.vbp", "Type=Exe\r\nModule=modStock; modStock.bas\r\nName=\"Odd\"\r\n");
  environment_->Open("C:\\Work\\Odd.vbp");
  window_->ShowProject();
  const auto shared = environment_->Projects()[1]->Modules()[0];
  EXPECT_EQ(window_->OpenCode(shared)->windowTitle(), "Odd - modStock (Code)");
  EXPECT_EQ(window_->PaneOf(*Module("modStock"))->windowTitle(), "Stock - modStock (Code)");
  EXPECT_EQ(window_->OpenDesigner(Module("frmStock"))->windowTitle(), "Stock - frmStock");
  Module("modStock")->CodeModule()->InsertLines(1, "' one");
  shared->CodeModule()->InsertLines(1, "' two");
  prompts_.answers = {host::vbCancel};
  EXPECT_FALSE(window_->MayLeave());
  EXPECT_EQ(prompts_.messages.at(0).prompt, "Save the changes to these files?\r\n\r\n    C:\\Work\\modStock.bas");
}

TEST_F(MainWindowTest, FindProposesWhatIsSelectedInOneLine) {
  CodePane* pane = window_->OpenCode(Module("modStock"));
  Settle();
  const auto proposed = [&] {
    window_->Command("find")->trigger();
    auto* dialog = window_->findChild<FindDialog*>();
    dialog->hide();
    return dialog->Text();
  };
  Module("modStock")->CodeModule()->CodePane()->SetSelection({5, 5, 5, 10});
  EXPECT_EQ(proposed(), "Total");
  pane->Editor().selectAll();
  EXPECT_EQ(proposed(), "Total");
}

class SavingTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    module_ = Module("modStock");
    path_ = module_->Path();
  }
  void Edit() { module_->CodeModule()->InsertLines(1, "' new"); }
  bool IsWritten() { return files_.Read(path_).find("' new") != std::string::npos; }

  std::shared_ptr<environment::Module> module_;
  std::string path_;
};

TEST_F(SavingTest, SaveAllWritesWhatWasEditedAndTakesTheMarkAway) {
  Edit();
  ASSERT_TRUE(window_->SaveAll());
  EXPECT_TRUE(IsWritten());
  EXPECT_FALSE(window_->isWindowModified());
  EXPECT_TRUE(prompts_.messages.size() <= 1);
}

TEST_F(SavingTest, LeavingAsksWithTheNamesOfTheFiles) {
  EXPECT_TRUE(window_->MayLeave());
  EXPECT_TRUE(prompts_.messages.empty());
  Edit();
  prompts_.answers = {host::vbCancel};
  EXPECT_FALSE(window_->close());
  ASSERT_EQ(prompts_.messages.size(), 1u);
  EXPECT_NE(prompts_.messages[0].prompt.find(path_), std::string::npos);
  EXPECT_EQ(prompts_.messages[0].style & 15, host::vbYesNoCancel);
  EXPECT_FALSE(IsWritten());
  prompts_.answers = {host::vbNo};
  EXPECT_TRUE(window_->close());
  EXPECT_FALSE(IsWritten());
}

TEST_F(SavingTest, LeavingNamesTheProjectFileToo) {
  Edit();
  environment_->ActiveVBProject()->VBComponents()->Remove(Module("frmStock"));
  prompts_.answers = {host::vbCancel};
  EXPECT_FALSE(window_->MayLeave());
  EXPECT_NE(prompts_.messages.at(0).prompt.find(path_), std::string::npos);
  EXPECT_NE(prompts_.messages[0].prompt.find("C:\\Work\\Stock.vbp"), std::string::npos) << "it is saved as well";
}

TEST_F(SavingTest, LeavingWithYesSaves) {
  Edit();
  prompts_.answers = {host::vbYes, host::vbYes};
  EXPECT_TRUE(window_->MayLeave());
  EXPECT_TRUE(IsWritten());
}

TEST_F(SavingTest, AFileThatSomebodyElseChangedIsReplacedOnlyWhenAsked) {
  Edit();
  files_.Put(path_, "Attribute VB_Name = \"modStock\"\r\n' of somebody else\r\n");
  prompts_.answers = {host::vbNo};
  EXPECT_FALSE(window_->SaveModule(module_));
  EXPECT_FALSE(IsWritten());
  EXPECT_NE(prompts_.messages.at(0).prompt.find("changed on disk"), std::string::npos);
  EXPECT_EQ(prompts_.messages[0].style & host::vbDefaultButton2, host::vbDefaultButton2) << "No is the default";
  prompts_.answers = {host::vbYes};
  EXPECT_TRUE(window_->SaveModule(module_));
  EXPECT_TRUE(IsWritten());
}

// A component was added here while the .vbp changed outside.
class SavingAProjectTest : public SavingTest {
 protected:
  void SetUp() override {
    SavingTest::SetUp();
    environment_->ActiveVBProject()->VBComponents()->Add(host::ComponentType::ClassModule)->SaveAs("C:\\Work\\c.cls");
    files_.Put(kPath, kTheirs);
  }
  static constexpr char kPath[] = "C:\\Work\\Stock.vbp", kTheirs[] = "Type=Exe\r\nName=\"Theirs\"\r\n";
};

TEST_F(SavingAProjectTest, NoKeepsTheFileOnDiskAndTheEdit) {
  prompts_.answers = {host::vbNo};
  EXPECT_FALSE(window_->SaveAll());
  ASSERT_EQ(prompts_.messages.size(), 1u);
  EXPECT_NE(prompts_.messages[0].prompt.find("C:\\Work\\Stock.vbp\r\nwas changed on disk"), std::string::npos);
  EXPECT_EQ(prompts_.messages[0].style & host::vbDefaultButton2, host::vbDefaultButton2) << "No is the default";
  EXPECT_EQ(files_.Read(kPath), kTheirs);
  EXPECT_TRUE(environment_->Projects()[0]->IsDirty());
}

TEST_F(SavingAProjectTest, YesReplacesTheFileOnDisk) {
  prompts_.answers = {host::vbYes};
  EXPECT_TRUE(window_->SaveAll());
  EXPECT_EQ(prompts_.messages.size(), 1u);
  EXPECT_NE(files_.Read(kPath).find("; c.cls\r\n"), std::string::npos);
  EXPECT_NE(files_.Read(kPath).find("Name=\"Stock\""), std::string::npos);
  EXPECT_FALSE(environment_->IsDirty());
}

TEST_F(SavingAProjectTest, AFailureToReplaceItIsTold) {
  files_.FailWrites(kPath, 61);
  prompts_.answers = {host::vbYes, host::vbOK};
  EXPECT_FALSE(window_->SaveAll());
  EXPECT_NE(prompts_.messages.back().prompt.find("Stock.vbp\r\nwas not saved: "), std::string::npos);
  EXPECT_EQ(files_.Read(kPath), kTheirs);
}

TEST_F(SavingAProjectTest, TheChangeIsToldOnceWhenTheWindowComesToTheFront) {
  prompts_.answers = {host::vbNo};
  window_->CheckDisk();
  window_->CheckDisk();
  ASSERT_EQ(prompts_.messages.size(), 1u);
  EXPECT_NE(prompts_.messages[0].prompt.find("Stock.vbp"), std::string::npos);
}

// The list of a control was edited here while the .frx alone changed outside.
class SavingABinaryFileTest : public DeskTest {
 protected:
  void SetUp() override {
    files_.Put("C:\\Work\\List.frm",
               "VERSION 5.00\r\nBegin VB.Form frmList \r\n   Begin VB.ListBox lst \r\n"
               "      List            =   \"List.frx\":0000\r\n      TabIndex        =   0\r\n   End\r\nEnd\r\n"
               "Attribute VB_Name = \"frmList\"\r\n");
    files_.Put(kPath, std::string("\x01\0\x03\0\x02\0ab", 8));
    DeskTest::SetUp();
    environment_->ActiveVBProject()->VBComponents()->AddFile("C:\\Work\\List.frm");
    environment_->SaveAll();
    form_ = Module("frmList");
    form_->Designer()->VBControls()->Item("lst")->Properties()->Item("List")->SetIndexedValue(0, std::string("mine"));
    files_.Put(kPath, "theirs");
  }
  static constexpr char kPath[] = "C:\\Work\\List.frx";
  std::shared_ptr<environment::Module> form_;
};

TEST_F(SavingABinaryFileTest, NoKeepsTheFileOnDiskAndTheEdit) {
  prompts_.answers = {host::vbNo, host::vbNo};
  EXPECT_FALSE(window_->SaveModule(form_));
  EXPECT_FALSE(window_->SaveAll());
  ASSERT_EQ(prompts_.messages.size(), 2u);
  for (const auto& asked : prompts_.messages)
    EXPECT_NE(asked.prompt.find("C:\\Work\\List.frx\r\nwas changed on disk"), std::string::npos);
  EXPECT_EQ(files_.Read(kPath), "theirs");
  EXPECT_TRUE(form_->IsDirty());
}

TEST_F(SavingABinaryFileTest, YesReplacesTheFileOnDisk) {
  prompts_.answers = {host::vbYes};
  EXPECT_TRUE(window_->SaveModule(form_));
  EXPECT_NE(files_.Read(kPath).find("mine"), std::string::npos);
  EXPECT_FALSE(form_->IsDirty());
}

TEST_F(SavingTest, AProjectFileThatChangedOnDiskIsToldOnceAndTheProjectIsReadAgainOnYes) {
  window_->CheckDisk();
  EXPECT_TRUE(prompts_.messages.empty());
  int again = 0;
  QObject::connect(window_.get(), &MainWindow::ReadAgainWanted, [&] { ++again; });
  files_.Put("C:\\Work\\Stock.vbp", "Type=Exe\r\nName=\"Stock\"\r\n");
  prompts_.answers = {host::vbYes};
  window_->CheckDisk();
  EXPECT_EQ(again, 1);
  window_->CheckDisk();
  EXPECT_EQ(prompts_.messages.size(), 1u);
}

TEST_F(SavingTest, ADiskThatIsFullIsToldAndTheEditStays) {
  Edit();
  files_.FailWrites(path_, 61);
  prompts_.answers = {host::vbYes};
  EXPECT_FALSE(window_->SaveAll());
  EXPECT_NE(prompts_.messages.back().prompt.find("modStock.bas"), std::string::npos);
  EXPECT_TRUE(module_->IsDirty());
}

}  // namespace
}  // namespace corvane::desk
