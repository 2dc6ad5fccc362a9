// The add-in on the desk: connected, clicked, unloaded, as the environment does it.
#include "desk/desk.h"

#include <QAction>
#include <QFile>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QToolBar>
#include <gtest/gtest.h>
#include <sstream>

#include "desk/tour.h"
#include "desk/user_settings.h"
#include "environment/command_bar_model.h"
#include "environment/project.h"
#include "explorer/frm_add_in.h"
#include "runtime/code_page.h"
#include "tests/desk/desk_fixture.h"

namespace corvane::desk {
namespace {

class DeskOfSample : public testing::Test {
 protected:
  host::Services Services() {
    const host::Services real = services_;
    return {real.Clipboard, prompts_, settings_, real.App, real.Screen, real.Loop, real.Files, real.Pictures, printer_};
  }
  void Start(int connect_mode = -1) {
    desk_ = std::make_unique<Desk>(Services(), DeskOptions{0, connect_mode, true});
    ASSERT_TRUE(desk_->Open(QString(CORVANE_SOURCE_DIR) + "/samples/stockroom/Stockroom.vbp"));
    Settle();
  }
  // Captions of an add-in on a bar, in order, with what stands around them.
  std::vector<std::string> Captions(const std::string& bar) {
    std::vector<std::string> captions;
    for (const auto& control : desk_->EnvironmentOf().Bars().Find(bar)->controls) captions.push_back(control.caption);
    return captions;
  }
  std::vector<QString> MenuTexts() {
    for (QAction* menu : desk_->Window().menuBar()->actions())
      if (menu->text() == "&Add-Ins") {
        std::vector<QString> texts;
        for (QAction* action : menu->menu()->actions()) texts.push_back(action->text());
        return texts;
      }
    return {};
  }
  std::string Shown() { return settings_.GetSetting("Corvane", "Settings", "DisplayOnConnect", ""); }

  QTemporaryDir folder_;
  QtServices services_;
  UserSettings settings_{folder_.filePath("corvane.ini")};
  tests::FakePrompts prompts_;
  tests::FakePrinter printer_;
  std::unique_ptr<Desk> desk_;
};

TEST_F(DeskOfSample, AfterStartupTheButtonAndTheMenuItemAreThereAndTheExplorerIsNot) {
  Start();
  const auto standard = Captions("Standard");
  ASSERT_GE(standard.size(), 2u);
  EXPECT_EQ(standard[standard.size() - 2], "Corvane - 2000") << "in front of the last control";
  const auto menu = MenuTexts();
  EXPECT_EQ(menu.front(), "&Add-In Manager...");
  EXPECT_EQ(menu.back(), "&Corvane - 2000");
  EXPECT_FALSE(desk_->ExplorerWindow());
}

TEST_F(DeskOfSample, TheButtonWearsItsFace) {
  Start();
  for (QAction* action : desk_->Window().findChild<QToolBar*>("Standard")->actions())
    if (action->text() == "Corvane - 2000") {
      EXPECT_FALSE(action->icon().isNull());
      return;
    }
  FAIL() << "no button on the toolbar";
}

TEST_F(DeskOfSample, AClickOnTheButtonOpensTheExplorerInFrontOfTheDesk) {
  Start();
  ASSERT_TRUE(desk_->ClickButton());
  Settle();
  ASSERT_TRUE(desk_->ExplorerWindow());
  EXPECT_TRUE(desk_->ExplorerWindow()->isVisible());
  EXPECT_TRUE(desk_->ExplorerWindow()->isWindow());
  EXPECT_EQ(desk_->ExplorerWindow()->parentWidget(), &desk_->Window());
  EXPECT_GE(desk_->AddIn()->mfrmAddIn()->lbxComp->ListCount(), 14);
}

TEST_F(DeskOfSample, UnloadingTakesTheControlsAwayAndKeepsTheSetting) {
  Start();
  desk_->ClickButton();
  Settle();
  desk_->Apply({false, true});
  Settle();
  EXPECT_FALSE(desk_->IsConnected());
  EXPECT_EQ(Shown(), "1");
  for (const std::string& caption : Captions("Standard")) EXPECT_NE(caption, "Corvane - 2000");
  EXPECT_FALSE(desk_->ClickButton());
}

TEST_F(DeskOfSample, LoadingByHandShowsTheExplorerWhenItWasShownLast) {
  Start();
  desk_->ClickButton();
  desk_->Apply({false, true});
  desk_->Apply({true, true});
  Settle();
  ASSERT_TRUE(desk_->ExplorerWindow()) << "mode 0 looks at the setting";
  EXPECT_TRUE(desk_->ExplorerWindow()->isVisible());
}

TEST_F(DeskOfSample, ModeTwoHasNoControlsAndShowsTheExplorerAtOnce) {
  Start(static_cast<int>(addin::ConnectMode::External));
  for (const std::string& caption : Captions("Standard")) EXPECT_NE(caption, "Corvane - 2000");
  EXPECT_TRUE(desk_->ExplorerWindow());
}

TEST_F(DeskOfSample, AnAddInThatIsNotToLoadAtStartupStaysOut) {
  settings_.SaveSetting("Corvane", "Add-Ins", addin::kProgId, "0");
  Start();
  EXPECT_FALSE(desk_->IsConnected());
  EXPECT_EQ(desk_->State(), (AddInState{false, false}));
}

TEST_F(DeskOfSample, LeavingTheDeskDisconnects) {
  Start();
  desk_->Window().close();
  EXPECT_FALSE(desk_->IsConnected());
  EXPECT_EQ(Shown(), "0");
}

TEST_F(DeskOfSample, AnotherProjectTakesThePlaceOfTheFirst) {
  Start();
  ASSERT_TRUE(desk_->Open(QString(CORVANE_SOURCE_DIR) + "/samples/group/Counters.vbg"));
  Settle();
  EXPECT_EQ(desk_->EnvironmentOf().Projects().size(), 2u);
  EXPECT_TRUE(desk_->IsConnected());
  EXPECT_TRUE(desk_->ClickButton());
}

class DeskOfTwoProjects : public DeskOfSample {
 protected:
  void SetUp() override {
    Put("Stock", "");
    Put("Tools", "");
    desk_ = std::make_unique<Desk>(Services());
    ASSERT_TRUE(desk_->Open(File("Stock")));
    ASSERT_TRUE(desk_->AddProject(File("Tools")));
    Settle();
  }
  QString File(const std::string& project) { return folder_.filePath(QString::fromStdString(project + ".vbp")); }
  void Put(const std::string& project, const std::string& lines) {
    QFile file(File(project));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(("Type=Exe\r\n" + lines + "Name=\"" + project + "\"\r\n").c_str());
  }
  // The user answers the question about a project file that somebody else has changed.
  void ReadAgain() {
    prompts_.answers = {host::vbYes};
    desk_->Window().CheckDisk();
    Settle();
  }
  std::vector<std::string> Projects() {
    std::vector<std::string> names;
    for (const auto& project : desk_->EnvironmentOf().Projects()) names.push_back(project->Name());
    return names;
  }
};

TEST_F(DeskOfTwoProjects, AProjectThatIsReadAgainKeepsTheAddedOnes) {
  for (const char* changed : {"Stock", "Tools", "Stock"}) {
    SCOPED_TRACE(changed);
    const auto* before = &desk_->EnvironmentOf();
    Put(changed, "Title=\"" + std::to_string(prompts_.messages.size()) + "\"\r\n");
    ReadAgain();
    EXPECT_NE(&desk_->EnvironmentOf(), before);
    EXPECT_EQ(Projects(), (std::vector<std::string>{"Stock", "Tools"}));
  }
  EXPECT_EQ(prompts_.messages.size(), 3u);
}

TEST_F(DeskOfTwoProjects, WhatIsOpenStaysWhenOneOfThemCannotBeReadAgain) {
  Put("Stock", "Title=\"Other\"\r\n");
  ASSERT_TRUE(QFile::remove(File("Tools")));
  ReadAgain();
  ASSERT_EQ(prompts_.messages.size(), 2u);
  EXPECT_NE(prompts_.messages[1].prompt.find("Tools.vbp"), std::string::npos);
  EXPECT_EQ(Projects(), (std::vector<std::string>{"Stock", "Tools"}));
}

TEST_F(DeskOfTwoProjects, AnotherProjectTakesThePlaceOfBoth) {
  Put("Lent", "");
  ASSERT_TRUE(desk_->Open(File("Lent")));
  Put("Lent", "Title=\"Other\"\r\n");
  ReadAgain();
  EXPECT_EQ(Projects(), std::vector<std::string>{"Lent"});
}

TEST_F(DeskOfSample, AFileThatIsNoProjectIsToldAndWhatWasOpenStays) {
  Start();
  EXPECT_FALSE(desk_->Open(folder_.filePath("missing.vbp")));
  ASSERT_EQ(prompts_.messages.size(), 1u);
  EXPECT_NE(prompts_.messages[0].prompt.find("missing.vbp"), std::string::npos);
  EXPECT_EQ(desk_->EnvironmentOf().ActiveVBProject()->Name(), "Stockroom");
}

TEST_F(DeskOfSample, AGroupOfWhichNothingOpensIsToldAndWhatWasOpenStays) {
  Start();
  QFile group(folder_.filePath("Lost.vbg"));
  ASSERT_TRUE(group.open(QIODevice::WriteOnly));
  group.write("VBGROUP 5.0\r\nStartupProject=none.vbp\r\n");
  group.close();
  EXPECT_FALSE(desk_->Open(group.fileName()));
  ASSERT_EQ(prompts_.messages.size(), 1u);
  EXPECT_EQ(prompts_.messages[0].prompt, group.fileName().toStdString() +
                                             "\r\ncannot be opened: no project in it can be read"
                                             "\r\n    line 2: none.vbp: file not found");
  ASSERT_EQ(desk_->EnvironmentOf().Projects().size(), 1u);
  EXPECT_EQ(desk_->EnvironmentOf().ActiveVBProject()->Name(), "Stockroom");
  EXPECT_TRUE(desk_->IsConnected());
  EXPECT_FALSE(desk_->AddProject(group.fileName()));
  EXPECT_EQ(prompts_.messages.size(), 2u);
}

TEST_F(DeskOfSample, AGroupOfWhichNothingOpensLeavesTheCodePageAlone) {
  Start();
  runtime::SetAnsiCodePage(1251);
  QFile group(folder_.filePath("Lost.vbg"));
  ASSERT_TRUE(group.open(QIODevice::WriteOnly));
  group.write("VBGROUP 5.0\r\nStartupProject=none.vbp\r\n");
  group.close();
  EXPECT_FALSE(desk_->Open(group.fileName()));
  EXPECT_EQ(runtime::AnsiCodePage().Number(), 1251) << "what is open lives on it";
  runtime::SetAnsiCodePage(1252);
}

TEST_F(DeskOfSample, AGroupOfWhichNothingOpensLeavesAnEmptyDeskEmpty) {
  desk_ = std::make_unique<Desk>(Services());
  QFile group(folder_.filePath("Lost.vbg"));
  ASSERT_TRUE(group.open(QIODevice::WriteOnly));
  group.write("VBGROUP 5.0\r\nStartupProject=none.vbp\r\n");
  group.close();
  EXPECT_FALSE(desk_->Open(group.fileName()));
  EXPECT_EQ(prompts_.messages.size(), 1u);
  EXPECT_TRUE(desk_->Open(QString(CORVANE_SOURCE_DIR) + "/samples/stockroom/Stockroom.vbp"));
  EXPECT_TRUE(desk_->EnvironmentOf().Problems().empty()) << "those of the group are history";
  EXPECT_TRUE(desk_->ClickButton());
}

TEST_F(DeskOfSample, TheTourLeavesPicturesOfTheDeskAndTheExplorer) {
  Start();
  std::ostringstream out;
  ASSERT_TRUE(RunTour(*desk_, folder_.filePath("tour"), out)) << out.str();
  for (const char* name : {"tour/desk.png", "tour/explorer.png"}) {
    const QImage picture(folder_.filePath(name));
    EXPECT_GT(picture.width(), 300) << name;
  }
  EXPECT_NE(out.str().find("procedure: "), std::string::npos);
  ASSERT_TRUE(desk_->EnvironmentOf().ActiveCodePane()) << "the tour went to the code";
}

TEST_F(DeskOfSample, NothingThatTheTourDoesMarksAFileAsEdited) {
  Start();
  std::ostringstream out;
  RunTour(*desk_, folder_.filePath("tour"), out);
  TakeScreenshots(*desk_, folder_.filePath("shots"), "", out);
  EXPECT_FALSE(desk_->EnvironmentOf().IsDirty());
}

}  // namespace
}  // namespace corvane::desk
