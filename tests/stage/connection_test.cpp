// The library inside the environment: connection and disconnection, its two controls, its window, its setting.
#include "tests/stage/story.h"
#include "tests/support/registry_rights.h"

namespace corvane::stage {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class Connecting : public Story {};

TEST_F(Connecting, TheLibraryIsLoadedFromTheRegistryAndStaysOnceItMadeAnAddIn) {
  {
    InstalledLibrary library(L"loaded");
    ASSERT_EQ(library.Register(), S_OK);
    EXPECT_FALSE(library.IsLoaded()) << "its registration alone does not keep it";
    ASSERT_EQ(host.Create(), S_OK);
    EXPECT_TRUE(library.IsLoaded());
    host.Release();
    AddInHost::FreeLibraries();
    EXPECT_TRUE(library.IsLoaded()) << "a message of its windows may still be running";
  }
  RegisterUsualLibrary();
}

TEST_F(Connecting, TheAddInManagerListsItByNameAndDescription) {
  const auto listed = FindListed("Corvane - 2000");
  ASSERT_TRUE(listed);
  EXPECT_EQ(listed->description, "Powerfull Project Explorer with Color code analysis. ") << "with its last blank";
  EXPECT_EQ(listed->prog_id, L"corvane.Connect");
  EXPECT_TRUE(listed->IsLoadedAtStartup());
  EXPECT_EQ(listed->command_line_safe, 0u) << "it shows messages";
}

TEST_F(Connecting, NotChosenForTheStartItIsLoadedByTheUserAlone) {
  const auto listed = FindListed("Corvane - 2000");
  ASSERT_TRUE(listed);
  ChooseLoading(*listed, 0);
  EXPECT_EQ(host.StartUp(), S_FALSE);
  EXPECT_EQ(host.AddIn(), nullptr);
  EXPECT_EQ(FindOnBar("Standard", kButton), nullptr);
  EXPECT_EQ(host.LoadByUser(), S_OK);
  EXPECT_NE(FindOnBar("Standard", kButton), nullptr);
  EXPECT_EQ(host.UnloadByUser(), S_OK);
  ChooseLoading(*listed, 1);
  EXPECT_EQ(host.StartUp(), S_OK);
}

TEST_F(Connecting, AtStartupTheControlsComeAndTheWindowDoesNot) {
  SetSetting("1");
  ASSERT_EQ(host.StartUp(), S_OK);
  window.Settle();
  EXPECT_NE(FindOnBar("Standard", kButton), nullptr);
  EXPECT_NE(FindOnBar("Add-Ins", kMenuItem), nullptr);
  EXPECT_THAT(ShownWindows(window.Handle()), IsEmpty());
  EXPECT_THAT(boxes.Boxes(), IsEmpty());
}

TEST_F(Connecting, TheButtonStandsInFrontOfTheLastOneWithItsFace) {
  const auto before = Captions("Standard");
  ASSERT_EQ(host.StartUp(), S_OK);
  const auto after = Captions("Standard");
  ASSERT_EQ(after.size(), before.size() + 1);
  EXPECT_EQ(after.back(), before.back());
  EXPECT_EQ(after[after.size() - 2], kButton);
  const environment::BarControl* button = FindOnBar("Standard", kButton);
  EXPECT_EQ(button->type, 1);
  EXPECT_TRUE(button->visible);
  EXPECT_EQ(button->state, 0);
  EXPECT_EQ(button->style, 1);
  ASSERT_NE(button->face, nullptr);
  EXPECT_EQ(button->face->bytes.substr(0, 2), "BM");
  EXPECT_GT(button->face->bytes.size(), 100u);
  EXPECT_EQ(Captions("Add-Ins").back(), kMenuItem);
}

TEST_F(Connecting, LoadedByTheUserTheWindowComesWhereItWasOpenLast) {
  SetSetting("1");
  ASSERT_EQ(host.LoadByUser(), S_OK);
  window.Settle();
  EXPECT_NE(Explorer(), nullptr);
}

TEST_F(Connecting, LoadedByTheUserWithoutTheSettingTheWindowStaysAway) {
  ASSERT_EQ(host.LoadByUser(), S_OK);
  window.Settle();
  EXPECT_EQ(Explorer(), nullptr);
  EXPECT_NE(FindOnBar("Standard", kButton), nullptr);
}

TEST_F(Connecting, TheExternalModeMakesNoControlsAndShowsTheWindowAtOnce) {
  const auto standard = Captions("Standard"), add_ins = Captions("Add-Ins");
  ASSERT_EQ(host.Create(), S_OK);
  ASSERT_EQ(host.OnConnection(kExternal), S_OK);
  window.Settle();
  EXPECT_NE(Explorer(), nullptr);
  EXPECT_EQ(Captions("Standard"), standard);
  EXPECT_EQ(Captions("Add-Ins"), add_ins);
}

TEST_F(Connecting, TheCommandLineModeMakesTheControlsAndIgnoresTheSetting) {
  SetSetting("1");
  ASSERT_EQ(host.Create(), S_OK);
  ASSERT_EQ(host.OnConnection(kCommandLine), S_OK);
  window.Settle();
  EXPECT_NE(FindOnBar("Standard", kButton), nullptr);
  EXPECT_EQ(Explorer(), nullptr);
}

TEST_F(Connecting, TheButtonOpensTheExplorerWithItsListsFilled) {
  ASSERT_EQ(host.StartUp(), S_OK);
  ASSERT_TRUE(Click("Standard", kButton));
  ASSERT_NE(Explorer(), nullptr);
  EXPECT_EQ(CaptionOf(Explorer()), std::string(kExplorer) + " ( C:\\Projects\\stockroom\\Stockroom.vbp )");
  EXPECT_EQ(stage.ledger.Calls("VBComponents.Item"), 23) << "each component was asked for";
  EXPECT_GT(stage.ledger.Calls("CodeModule.ProcOfLine"), 3) << "and the procedures of one of them";
  EXPECT_EQ(boxes.Menus(), 0);
}

TEST_F(Connecting, EnterOnAProcedureGoesToItsCode) {
  ASSERT_EQ(host.StartUp(), S_OK);
  Click("Standard", kButton);
  ASSERT_EQ(environment->ActiveCodePane(), nullptr);
  Press(Components(), {VK_DOWN, VK_DOWN, VK_DOWN});
  Press(Procedures(), {VK_HOME, VK_DOWN, VK_DOWN, VK_RETURN});
  ASSERT_NE(environment->ActiveCodePane(), nullptr);
  EXPECT_EQ(environment->ActiveCodePane()->CodeModule()->Name(), "BinMap");
  EXPECT_GT(environment->ActiveCodePane()->GetSelection().start_line, 1);
}

// Whatever the window asked for while it was used: of the project nothing is kept.
TEST_F(Connecting, WithTheWindowInUseOnlyWhatIsAllowedIsHeld) {
  ASSERT_EQ(host.StartUp(), S_OK);
  const std::string allowed = "CommandBarControl 2, CommandBarEvents 2, VBBuildEvents 1, VBE 1";
  EXPECT_EQ(stage.ledger.Left(), allowed);
  Click("Standard", kButton);
  Press(Components(), {VK_DOWN, VK_DOWN, VK_DOWN});
  Press(Procedures(), {VK_HOME, VK_DOWN, VK_DOWN, VK_RETURN});
  ASSERT_NE(environment->ActiveCodePane(), nullptr);
  EXPECT_EQ(stage.ledger.Left(), allowed);
  environment->EnterRunMode();
  window.Settle();
  EXPECT_EQ(stage.ledger.Left(), allowed);
}

TEST_F(Connecting, ButtonThenButtonOffersNoMenu) {
  ASSERT_EQ(host.StartUp(), S_OK);
  Click("Standard", kButton);
  Click("Standard", kButton);
  EXPECT_EQ(boxes.Menus(), 0);
}

TEST_F(Connecting, TheMenuItemOffersTheMenuFromItsSecondUseOn) {
  ASSERT_EQ(host.StartUp(), S_OK);
  ASSERT_TRUE(Click("Add-Ins", kMenuItem));
  EXPECT_NE(Explorer(), nullptr);
  EXPECT_EQ(boxes.Menus(), 0);
  ASSERT_TRUE(Click("Add-Ins", kMenuItem));
  EXPECT_EQ(boxes.Menus(), 1);
}

TEST_F(Connecting, ButtonThenMenuItemOffersTheMenu) {
  ASSERT_EQ(host.StartUp(), S_OK);
  Click("Standard", kButton);
  Click("Add-Ins", kMenuItem);
  EXPECT_EQ(boxes.Menus(), 1);
}

TEST_F(Connecting, RunModeMinimisesTheWindow) {
  ASSERT_EQ(host.StartUp(), S_OK);
  Click("Standard", kButton);
  const HWND explorer = Explorer();
  ASSERT_NE(explorer, nullptr);
  environment->EnterRunMode();
  window.Settle();
  EXPECT_TRUE(IsIconic(explorer));
}

TEST_F(Connecting, RunModeWithAWindowNeverOpenedShowsNothing) {
  ASSERT_EQ(host.StartUp(), S_OK);
  environment->EnterRunMode();
  window.Settle();
  EXPECT_THAT(ShownWindows(window.Handle()), IsEmpty());
  ASSERT_TRUE(Click("Standard", kButton));
  EXPECT_NE(Explorer(), nullptr);
  EXPECT_FALSE(IsIconic(Explorer()));
}

TEST_F(Connecting, AnEnvironmentWithoutBuildEventsIsServedWithoutThem) {
  environment->SetOffersBuildEvents(false);
  ASSERT_EQ(host.StartUp(), S_OK);
  EXPECT_THAT(boxes.Boxes(), IsEmpty());
  Click("Standard", kButton);
  environment->EnterRunMode();
  window.Settle();
  ASSERT_NE(Explorer(), nullptr);
  EXPECT_FALSE(IsIconic(Explorer()));
}

TEST_F(Connecting, DisconnectingRemovesControlsAndWindow) {
  const auto standard = Captions("Standard"), add_ins = Captions("Add-Ins");
  ASSERT_EQ(host.StartUp(), S_OK);
  Click("Standard", kButton);
  EXPECT_EQ(host.UnloadByUser(), S_OK);
  EXPECT_EQ(Captions("Standard"), standard);
  EXPECT_EQ(Captions("Add-Ins"), add_ins);
  EXPECT_EQ(Explorer(), nullptr);
  environment->EnterRunMode();
}

TEST_F(Connecting, DisconnectingWithTheWindowOpenStores1) {
  ASSERT_EQ(host.StartUp(), S_OK);
  Click("Standard", kButton);
  EXPECT_EQ(host.ShutDown(), S_OK);
  EXPECT_EQ(Setting(), "1");
}

TEST_F(Connecting, DisconnectingWithoutItStores0) {
  SetSetting("1");
  ASSERT_EQ(host.StartUp(), S_OK);
  EXPECT_EQ(host.ShutDown(), S_OK);
  EXPECT_EQ(Setting(), "0");
}

TEST_F(Connecting, DisconnectingWithTheWindowClosedByEscStores1) {
  ASSERT_EQ(host.StartUp(), S_OK);
  Click("Standard", kButton);
  ASSERT_NE(Explorer(), nullptr);
  ASSERT_TRUE(GetFocus() == Explorer() || IsChild(Explorer(), GetFocus()));
  Press(Procedures(), {VK_ESCAPE});
  EXPECT_EQ(Explorer(), nullptr);
  EXPECT_EQ(host.ShutDown(), S_OK);
  EXPECT_EQ(Setting(), "1");
}

TEST_F(Connecting, DisconnectingWithTheWindowClosedByItsBoxStores1) {
  ASSERT_EQ(host.StartUp(), S_OK);
  Click("Standard", kButton);
  PostMessageW(Explorer(), WM_CLOSE, 0, 0);
  window.Settle();
  EXPECT_EQ(Explorer(), nullptr);
  ASSERT_TRUE(Click("Standard", kButton)) << "it opens again";
  EXPECT_NE(Explorer(), nullptr);
  PostMessageW(Explorer(), WM_CLOSE, 0, 0);
  window.Settle();
  EXPECT_EQ(host.ShutDown(), S_OK);
  EXPECT_EQ(Setting(), "1");
}

TEST_F(Connecting, AConnectionThatFailsHalfWayIsEndedLikeAnyOther) {
  environment->Bars().RemoveBar("Standard");
  ASSERT_EQ(host.StartUp(), S_OK);
  EXPECT_THAT(boxes.Boxes(), ElementsAre("Object variable or With block variable not set"));
  EXPECT_NE(FindOnBar("Add-Ins", kMenuItem), nullptr);
  EXPECT_EQ(host.ShutDown(), S_OK);
  EXPECT_EQ(FindOnBar("Add-Ins", kMenuItem), nullptr);
  EXPECT_EQ(Setting(), "0");
}

TEST_F(Connecting, WithoutTheMenuTheErrorIsShownAndTheButtonWorks) {
  environment->Bars().RemoveBar("Add-Ins");
  ASSERT_EQ(host.StartUp(), S_OK);
  EXPECT_THAT(boxes.Boxes(), ElementsAre("Object variable or With block variable not set"));
  ASSERT_TRUE(Click("Standard", kButton));
  EXPECT_NE(Explorer(), nullptr);
}

TEST_F(Connecting, EventsOfAControlThatAreRefusedAreShown) {
  stage.ledger.FailEvery("Events.CommandBarEvents", Failure::Error(5, "No events today"));
  ASSERT_EQ(host.StartUp(), S_OK);
  EXPECT_THAT(boxes.Boxes(), ElementsAre("No events today"));
  EXPECT_NE(FindOnBar("Standard", kButton), nullptr) << "what was made stays";
  EXPECT_NE(FindOnBar("Add-Ins", kMenuItem), nullptr);
  stage.ledger.Heal();
  EXPECT_FALSE(Click("Standard", kButton));
  EXPECT_EQ(host.ShutDown(), S_OK);
  EXPECT_EQ(FindOnBar("Standard", kButton), nullptr);
}

TEST_F(Connecting, ARegistryThatKeepsNoSettingIsPassedOver) {
  constexpr wchar_t kApp[] = L"Software\\VB and VBA Program Settings\\Corvane";
  HKEY app = nullptr;
  // Nothing that lasts can be made below a key that is gone with the next start of the system.
  ASSERT_EQ(
      RegCreateKeyExW(HKEY_CURRENT_USER, kApp, 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr, &app, nullptr),
      ERROR_SUCCESS);
  RegCloseKey(app);
  ASSERT_EQ(host.LoadByUser(), S_OK);
  ASSERT_TRUE(Click("Standard", kButton));
  ASSERT_NE(Explorer(), nullptr);
  EXPECT_EQ(host.UnloadByUser(), S_OK);
  EXPECT_EQ(Explorer(), nullptr);
  EXPECT_EQ(Setting(), "") << "it was refused";
  EXPECT_THAT(boxes.Boxes(), IsEmpty());
  ForgetSetting();
}

// A value that is no text is none.
TEST_F(Connecting, ASettingThatCannotBeReadLeavesTheWindowAway) {
  const DWORD one = 1;
  ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings\\Corvane\\Settings",
                            L"DisplayOnConnect", REG_DWORD, &one, sizeof(one)),
            ERROR_SUCCESS);
  ASSERT_EQ(host.LoadByUser(), S_OK);
  window.Settle();
  EXPECT_EQ(Explorer(), nullptr);
  EXPECT_THAT(boxes.Boxes(), IsEmpty());
}

TEST_F(Connecting, ASettingThatMayNotBeReadLeavesTheWindowAway) {
  SetSetting("1");
  constexpr wchar_t kSection[] = L"Software\\VB and VBA Program Settings\\Corvane\\Settings";
  tests::Allow(HKEY_CURRENT_USER, kSection, tests::kNoValuesRead);
  EXPECT_EQ(host.LoadByUser(), S_OK);
  window.Settle();
  EXPECT_EQ(Explorer(), nullptr);
  EXPECT_THAT(boxes.Boxes(), IsEmpty());
  EXPECT_EQ(host.UnloadByUser(), S_OK);
  tests::Allow(HKEY_CURRENT_USER, kSection, tests::kEverything);
  EXPECT_EQ(Setting(), "0") << "writing was not refused";
}

TEST_F(Connecting, ItIsLoadedAndUnloadedManyTimesInOneSession) {
  for (int i = 0; i < 5; ++i) {
    ASSERT_EQ(host.LoadByUser(), S_OK) << i;
    ASSERT_TRUE(Click("Standard", kButton)) << i;
    ASSERT_NE(Explorer(), nullptr) << i;
    ASSERT_EQ(host.UnloadByUser(), S_OK) << i;
    ASSERT_EQ(Explorer(), nullptr) << i;
    AddInHost::FreeLibraries();
    EXPECT_EQ(stage.ledger.references, 0) << i;
  }
}

// The system's own loop runs inside the window's message then, and no act of the add-in does.
TEST_F(Connecting, ADisconnectionWhileTheUserMovesTheWindowWaitsForTheMove) {
  ASSERT_EQ(host.StartUp(), S_OK);
  Click("Standard", kButton);
  const HWND explorer = Explorer();
  ASSERT_NE(explorer, nullptr);
  bool was_moved = false, was_shown = true, was_there = false;
  window.Later(200, [&] {
    GUITHREADINFO thread{};
    thread.cbSize = sizeof(thread);
    was_moved = GetGUIThreadInfo(GetCurrentThreadId(), &thread) && (thread.flags & GUI_INMOVESIZE);
    EXPECT_EQ(host.UnloadByUser(), S_OK);
    was_shown = IsWindowVisible(explorer);
    was_there = IsWindow(explorer);
    PostKey(window.Handle(), VK_ESCAPE);
  });
  SendMessageW(explorer, WM_SYSCOMMAND, SC_MOVE, 0);
  EXPECT_TRUE(was_moved);
  EXPECT_FALSE(was_shown);
  EXPECT_TRUE(was_there) << "its message was still running";
  EXPECT_TRUE(window.PumpUntil([&] { return !IsWindow(explorer); }));
}

}  // namespace
}  // namespace corvane::stage
