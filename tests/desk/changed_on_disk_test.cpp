// Files that another program changes while they are open on the desk. On a real disk.
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTreeWidget>

#include "desk/code_pane.h"
#include "desk/designer_window.h"
#include "desk/property_list.h"
#include "environment/disk_files.h"
#include "environment/paths.h"
#include "tests/desk/desk_fixture.h"

namespace corvane::desk {
namespace {

class ChangedOnDisk : public testing::Test {
 protected:
  void SetUp() override {
    Put("Stock.vbp", kProject);
    Put("modStock.bas", kModule);
    Put("frmStock.frm", kForm);
    environment_->Open(environment::WindowsPath(folder_.filePath("Stock.vbp").toStdString()));
    window_ = std::make_unique<MainWindow>(environment_, prompts_);
    window_->show();
    Settle();
    module_ = environment_->Projects()[0]->Modules()[1];
    form_ = environment_->Projects()[0]->Modules()[0];
  }
  void TearDown() override { window_.reset(); }

  // Later than whatever was read, however coarse the clock of the disk.
  void Put(const QString& name, const std::string& bytes) {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes.data(), static_cast<qint64>(bytes.size()));
    ASSERT_TRUE(file.flush());
    file.setFileTime(QDateTime::currentDateTime().addSecs(++writes_), QFileDevice::FileModificationTime);
  }
  std::string Disk(const QString& name) {
    QFile file(folder_.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
  }
  static std::string Replaced(std::string text, const std::string& old, const std::string& with) {
    return text.replace(text.find(old), old.size(), with);
  }
  static QString TextIn(CodePane& pane) { return pane.Editor().toPlainText(); }
  static QString TextOf(environment::Module& module) {
    return QString::fromStdString(module.CodeModule()->Lines(1, 999)).remove('\r');
  }
  int Windows() { return static_cast<int>(window_->findChild<QMdiArea*>()->subWindowList().size()); }

  QTemporaryDir folder_;
  int writes_ = 0;
  std::unique_ptr<host::Files> files_ = environment::NewDiskFiles();
  tests::FakePrompts prompts_;
  std::shared_ptr<environment::Environment> environment_ = environment::Environment::Create(*files_);
  std::unique_ptr<MainWindow> window_;
  std::shared_ptr<environment::Module> module_, form_;
};

const std::string kTheirs = std::string("Attribute VB_Name = \"modStock\"\r\n' of somebody else\r\n") +
                            (kModule + sizeof "Attribute VB_Name = \"modStock\"\r\n" - 1);

TEST_F(ChangedOnDisk, AFileNotEditedHereIsReadAgainByItself) {
  CodePane* pane = window_->OpenCode(module_);
  CodePane* other = window_->OpenCode(form_);
  window_->OpenDesigner(form_);
  form_->CodeModule()->InsertLines(1, "' unsaved");
  module_->CodeModule()->CodePane()->SetSelection({5, 5, 5, 10});
  Put("modStock.bas", kTheirs);
  window_->CheckDisk();
  Settle();
  EXPECT_TRUE(prompts_.messages.empty());
  EXPECT_EQ(window_->PaneOf(*module_), pane);
  EXPECT_TRUE(TextIn(*pane).startsWith("' of somebody else\nOption Explicit\n"));
  EXPECT_EQ(TextIn(*pane), TextOf(*module_));
  EXPECT_EQ(pane->Editor().textCursor().selectedText(), "Total") << "the caret is where it was in its line";
  EXPECT_EQ(module_->PaneSelection().start_line, 6);
  EXPECT_FALSE(module_->IsDirty());
  EXPECT_EQ(Windows(), 3);
  EXPECT_TRUE(TextIn(*other).startsWith("' unsaved\n"));
  EXPECT_TRUE(form_->IsDirty());
  EXPECT_EQ(window_->statusBar()->currentMessage(),
            folder_.filePath("modStock.bas") + " was changed by another program and was read again.");
}

TEST_F(ChangedOnDisk, UndoBringsBackWhatWasHereAsAnEdit) {
  CodePane* pane = window_->OpenCode(module_);
  const QString before = TextIn(*pane);
  Put("modStock.bas", Replaced(Replaced(kModule, "    Total = 1", "    Total = 2"), "n * 2", "2 * n"));
  window_->CheckDisk();
  Settle();
  EXPECT_NE(TextIn(*pane), before);
  pane->Editor().undo();
  Settle();
  EXPECT_EQ(TextIn(*pane), before);
  EXPECT_EQ(TextOf(*module_), before);
  EXPECT_TRUE(module_->IsDirty());
  EXPECT_EQ(module_->WriteToText(), kModule);
  ASSERT_TRUE(window_->SaveModule(module_));
  EXPECT_EQ(Disk("modStock.bas"), kModule);
}

TEST_F(ChangedOnDisk, AFormIsReadAgainInItsOpenDesigner) {
  DesignerWindow* designer = window_->OpenDesigner(form_);
  DesignerCanvas& canvas = designer->Canvas();
  const auto place = [&](const std::string& name) {
    for (size_t at = 0; at < canvas.LayoutOf().controls.size(); ++at)
      if (canvas.LayoutOf().controls[at].name == name) return static_cast<int>(at);
    return -1;
  };
  canvas.Select({place("cmdSave")});
  const double left = canvas.BoxOf(place("cmdSave")).left();
  Put("frmStock.frm",
      Replaced(Replaced(kForm, "Left            =   3000", "Left            =   1500"), "   Begin VB.CommandButton",
               "   Begin VB.Timer tmr \r\n   End\r\n   Begin VB.CommandButton"));
  window_->CheckDisk();
  Settle();
  EXPECT_EQ(window_->DesignerOf(*form_), designer);
  EXPECT_EQ(canvas.BoxOf(place("cmdSave")).left(), left - 100);
  EXPECT_GE(place("tmr"), 0);
  ASSERT_EQ(canvas.Selected(), std::vector<int>{place("cmdSave")});
  EXPECT_EQ(form_->Designer()->SelectedVBControls()->Count(), 1);
  EXPECT_EQ(window_->Properties().Title(), "cmdSave  CommandButton");
  EXPECT_GT(window_->Properties().Table().rowCount(), 10);
  // It can be edited further.
  form_->Designer()->VBControls()->Item("cmdSave")->Properties()->Item("Caption")->SetValue(std::string("Keep"));
  EXPECT_TRUE(form_->IsDirty());
  ASSERT_TRUE(window_->SaveModule(form_));
  EXPECT_NE(Disk("frmStock.frm").find("\"Keep\""), std::string::npos);
}

class EditedInBothPlaces : public ChangedOnDisk {
 protected:
  void SetUp() override {
    ChangedOnDisk::SetUp();
    pane_ = window_->OpenCode(module_);
    module_->CodeModule()->InsertLines(1, "' mine");
    Put("modStock.bas", kTheirs);
  }
  CodePane* pane_ = nullptr;
};

TEST_F(EditedInBothPlaces, ItAsksOnceAndNoKeepsTheEdit) {
  prompts_.answers = {host::vbNo};
  window_->CheckDisk();
  window_->CheckDisk();
  ASSERT_EQ(prompts_.messages.size(), 1u);
  EXPECT_EQ(prompts_.messages[0].prompt,
            folder_.filePath("modStock.bas").toStdString() +
                "\r\nwas changed on disk by another program, and it was edited on this desk too.\r\n\r\n"
                "Read the file again? What was edited here is lost then.");
  EXPECT_EQ(prompts_.messages[0].style & host::vbDefaultButton2, host::vbDefaultButton2) << "No is the default";
  EXPECT_TRUE(TextIn(*pane_).startsWith("' mine\nOption"));
  EXPECT_TRUE(module_->IsDirty());
  EXPECT_EQ(Disk("modStock.bas"), kTheirs);
  Put("modStock.bas", kModule);
  window_->CheckDisk();
  EXPECT_EQ(prompts_.messages.size(), 2u) << "another change, another question";
}

TEST_F(EditedInBothPlaces, YesTakesWhatIsOnDisk) {
  prompts_.answers = {host::vbYes};
  window_->CheckDisk();
  Settle();
  EXPECT_TRUE(TextIn(*pane_).startsWith("' of somebody else\nOption"));
  EXPECT_FALSE(environment_->IsDirty());
  EXPECT_FALSE(window_->isWindowModified());
  Put("modStock.bas", kModule);
  window_->CheckDisk();
  EXPECT_EQ(prompts_.messages.size(), 1u) << "not edited any more";
  EXPECT_EQ(TextOf(*module_), TextIn(*pane_));
}

TEST_F(EditedInBothPlaces, NoCheckWhileTheQuestionIsOpen) {
  prompts_.while_open = [&](const auto&) { window_->CheckDisk(); };
  window_->CheckDisk();
  EXPECT_EQ(prompts_.messages.size(), 1u);
}

TEST_F(ChangedOnDisk, WhatCannotBeReadAgainIsToldOnceAndStays) {
  Put("frmStock.frm", "no form\r\n");
  const std::string before = form_->WriteToText();
  window_->CheckDisk();
  window_->CheckDisk();
  ASSERT_EQ(prompts_.messages.size(), 1u);
  EXPECT_NE(prompts_.messages[0].prompt.find("cannot be read again: no Form: its first line is not VERSION"),
            std::string::npos);
  EXPECT_EQ(form_->WriteToText(), before);
  Put("frmStock.frm", kForm);
  window_->CheckDisk();
  EXPECT_EQ(prompts_.messages.size(), 1u);
  EXPECT_TRUE(form_->FilesChangedOnDisk().empty());
}

TEST_F(ChangedOnDisk, SeveralFilesAreToldByTheirNumber) {
  Put("modStock.bas", kTheirs);
  Put("frmStock.frm", Replaced(kForm, "Form_Load", "Form_Paint"));
  window_->CheckDisk();
  EXPECT_EQ(window_->statusBar()->currentMessage(), "2 files were changed by another program and were read again.");
}

TEST_F(ChangedOnDisk, WhatIsNotUnderstoodInItComesToTheListAndGoesAgain) {
  Put("modStock.bas", std::string(kModule) + "<<<<<<< mine\r\n");
  window_->CheckDisk();
  Settle();
  ASSERT_EQ(window_->ProblemList().topLevelItemCount(), 1);
  EXPECT_TRUE(window_->ProblemList().isVisible());
  Put("modStock.bas", kModule);
  window_->CheckDisk();
  Settle();
  EXPECT_EQ(window_->ProblemList().topLevelItemCount(), 0);
}

}  // namespace
}  // namespace corvane::desk
