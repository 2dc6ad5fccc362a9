// What the explorer changes is in the code pane at once, and each act of the user there is one step of its Undo.
#include <QApplication>
#include <QDockWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

#include "codelist/reading_commands.h"
#include "desk/code_pane.h"
#include "desk/desk.h"
#include "desk/user_settings.h"
#include "explorer/frm_add_in.h"
#include "explorer/rows.h"
#include "tests/desk/desk_fixture.h"
#include "workshop/frm_result.h"

namespace corvane::desk {
namespace {

class EditThroughExplorer : public testing::Test {
 protected:
  void SetUp() override {
    const host::Services real = services_;
    desk_ = std::make_unique<Desk>(host::Services{real.Clipboard, prompts_, settings_, real.App, real.Screen, real.Loop,
                                                  real.Files, real.Pictures, printer_},
                                   DeskOptions{0, -1, true});
    ASSERT_TRUE(desk_->Open(QString(CORVANE_SOURCE_DIR) + "/samples/stockroom/Stockroom.vbp"));
    ASSERT_TRUE(desk_->ClickButton());
    Settle();
    form_ = desk_->AddIn()->mfrmAddIn();
    for (const auto& project : desk_->EnvironmentOf().Projects())
      for (const auto& module : project->Modules())
        if (module->Name() == "modFormat") pane_ = desk_->Window().OpenCode(module);
    ASSERT_TRUE(pane_);
    Settle();
    Act([&] {
      form_->optProj.SetValue(true);
      Choose(*form_->lbxComp, "modFormat");
      Choose(*form_->lbxProc, "Public Function ParseBin");
    });
    before_ = Text();
  }

  // As a toolkit reports an act of the user.
  void Act(const std::function<void()>& act) {
    desk_->Toolkit().Guard(act);
    Settle();
  }
  static void Choose(forms::ListControl& list, const std::string& text) {
    for (long row = 0; row < list.ListCount(); ++row)
      if (list.List(row).starts_with(text)) return list.UserSelect(row);
    FAIL() << text;
  }
  long RowOf(const std::string& text) {
    for (long row = 1; row <= form_->txtCode.ListCount(); ++row)
      if (form_->txtCode.List(row).find(text) != std::string::npos) return row;
    return 0;
  }
  QString Text() const { return pane_->Editor().toPlainText(); }
  void ExpectOneStep() {
    EXPECT_NE(Text(), before_);
    pane_->Editor().undo();
    Settle();
    EXPECT_EQ(Text(), before_);
  }
  void ClickEntry(codelist::ListEntry entry) {
    Act([&] {
      forms::Menu& item = form_->txtCode.Reading().menu[entry];
      item.SetEnabled(true);
      item.UserClick();
    });
  }

  QTemporaryDir folder_;
  QtServices services_;
  UserSettings settings_{folder_.filePath("corvane.ini")};
  tests::FakePrompts prompts_;
  tests::FakePrinter printer_;
  std::unique_ptr<Desk> desk_;
  explorer::frmAddIn* form_ = nullptr;
  CodePane* pane_ = nullptr;
  QString before_;
};

TEST_F(EditThroughExplorer, AnEditedLineIsOneStep) {
  Act([&] { form_->ReplaceCodeLine(RowOf("bin.Rack = Left$"), "    bin.Rack = Right$(text, 1)"); });
  EXPECT_TRUE(Text().contains("bin.Rack = Right$(text, 1)"));
  EXPECT_TRUE(prompts_.Texts().empty());
  ExpectOneStep();
}

TEST_F(EditThroughExplorer, TwoEditsAreTwoSteps) {
  Act([&] { form_->ReplaceCodeLine(RowOf("bin.Rack = Left$"), "    bin.Rack = Right$(text, 1)"); });
  const QString between = Text();
  Act([&] { form_->ReplaceCodeLine(RowOf("bin.Shelf = numbers"), "        bin.Shelf = numbers(2)"); });
  EXPECT_NE(Text(), between);
  pane_->Editor().undo();
  EXPECT_EQ(Text(), between);
  ExpectOneStep();
}

TEST_F(EditThroughExplorer, CommentingTheSelectedLinesIsOneStep) {
  Act([&] {
    for (const char* text : {"bin.Shelf = numbers", "bin.Place = numbers"}) {
      form_->txtCode.SetStrPos(RowOf(text));
      form_->txtCode.ToggleSelect();
    }
  });
  ClickEntry(codelist::ListEntry::mnuComnt);
  EXPECT_TRUE(prompts_.Texts().empty());
  EXPECT_EQ(Text().count('\''), before_.count('\'') + 2);
  ExpectOneStep();
}

TEST_F(EditThroughExplorer, IndentingAProcedureIsOneStep) {
  Act([&] {
    form_->ReplaceCodeLine(RowOf("bin.Shelf = numbers"), "bin.Shelf = numbers(1)");
    form_->ReplaceCodeLine(RowOf("bin.Place = numbers"), "bin.Place = numbers(2)");
  });
  before_ = Text();
  ClickEntry(codelist::ListEntry::mnuFormat);
  EXPECT_TRUE(prompts_.Texts().empty());
  EXPECT_TRUE(Text().contains("\n  bin.Shelf = numbers(1)"))
      << Text().mid(Text().indexOf("If part = 2"), 200).toStdString();
  ExpectOneStep();
}

TEST_F(EditThroughExplorer, ACommentOfAProcedureIsOneStep) {
  QTimer::singleShot(0, [&] {
    auto* window = dynamic_cast<workshop::frmResult*>(desk_->Toolkit().ActiveForm());
    ASSERT_TRUE(window);
    window->txtRes.UserEdit(" What a bin is.", 0, 0);
    window->OKButton.UserClick();
  });
  Act([&] { form_->mnuComnt.Click(); });
  EXPECT_TRUE(Text().contains("\n' What a bin is.\nPublic Function ParseBin"));
  EXPECT_FALSE(Text().contains("Reads what BinText writes"));
  ExpectOneStep();
}

TEST_F(EditThroughExplorer, ClearingTheImmediateWindowEmptiesItAndNothingElse) {
  auto* immediate = desk_->Window().findChild<QDockWidget*>("immediate")->findChild<QPlainTextEdit*>();
  ASSERT_TRUE(immediate);
  immediate->setPlainText("? 1 + 1\n 2\n");
  desk_->ExplorerWindow()->activateWindow();
  Act([&] {
    form_->txtFind.SetText("mod");
    form_->txtFind.SetFocus();
  });
  ASSERT_EQ(QApplication::activeWindow(), desk_->ExplorerWindow());
  Act([&] { form_->tlbr.UserButtonClick(form_->tlbr.PositionOf("pImmed")); });
  EXPECT_EQ(immediate->toPlainText(), QString());
  EXPECT_EQ(form_->txtFind.Text(), "mod");
  EXPECT_EQ(Text(), before_);
}

TEST_F(EditThroughExplorer, TheToolbarOpensAsAMenu) {
  int entries = 0;
  QTimer::singleShot(0, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    for (QAction* action : menu->actions()) {
      if (!action->isSeparator()) ++entries;
      if (action->text() == "Clear Immediate window") action->trigger();
    }
    menu->close();
  });
  Act([&] { form_->UserKeyDown('T', forms::vbCtrlMask); });
  EXPECT_EQ(entries, 20);
}

TEST_F(EditThroughExplorer, WhatTheUserTypesBetweenTwoChangesOfOneActIsAStepOfItsOwn) {
  Act([&] {
    form_->ReplaceCodeLine(RowOf("bin.Shelf = numbers"), "        bin.Shelf = numbers(2)");
    pane_->Editor().moveCursor(QTextCursor::Start);
    pane_->Editor().insertPlainText("x");
    pane_->ModuleOf()->CodeModule()->InsertLines(1, "' last");
  });
  pane_->Editor().undo();
  Settle();
  EXPECT_TRUE(Text().startsWith("xOption")) << Text().left(40).toStdString();
}

}  // namespace
}  // namespace corvane::desk
