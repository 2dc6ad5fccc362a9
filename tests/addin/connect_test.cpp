// The add-in object: connection, its two controls, the window, the setting.
#include "addin/connect.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/command_bar_model.h"
#include "environment/environment.h"
#include "forms/headless_toolkit.h"
#include "tests/support/fake_services.h"
#include "tests/support/sources.h"

namespace corvane::tests {
namespace {

using addin::ConnectMode;
using addin::DisconnectMode;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Connecting : public ::testing::Test {
 protected:
  Connecting() {
    services.files.Put("C:\\Corvane\\corvane.bmp", "BM face");
    environment->OpenFromModules("Shop", {Bas("modMain", {"Public a", "Public b"}), Frm("frmMain", {"Dim a", ""})});
    // Bars of known buttons in place of the environment's own.
    for (const char* bar : {"Standard", "Add-Ins"}) environment->Bars().RemoveBar(bar);
    for (const char* caption : {"Add Project", "Start", "Toolbox"}) AddOwn("Standard", caption);
    AddOwn("Add-Ins", "Add-In Manager...");
  }

  void AddOwn(const std::string& bar, const std::string& caption) {
    environment::BarControl control;
    control.caption = caption;
    environment->Bars().AddOwn(bar, control);
  }
  void Connect(ConnectMode mode) { connect.AddinInstance_OnConnection(environment, mode); }
  void Disconnect() { connect.AddinInstance_OnDisconnection(DisconnectMode::UserClosed); }
  bool WindowShown() const { return connect.mfrmAddIn() && connect.mfrmAddIn()->Visible(); }
  std::string Setting() { return services.settings.GetSetting("Corvane", "Settings", "DisplayOnConnect", "none"); }
  void SetSetting(const std::string& value) {
    services.settings.SaveSetting("Corvane", "Settings", "DisplayOnConnect", value);
  }
  std::vector<std::string> Captions(const std::string& bar) {
    std::vector<std::string> captions;
    if (const environment::Bar* found = environment->Bars().Find(bar))
      for (const environment::BarControl& control : found->controls) captions.push_back(control.caption);
    return captions;
  }
  environment::BarControl ControlOf(const std::string& bar, const std::string& caption) {
    for (const environment::BarControl& control : environment->Bars().Find(bar)->controls)
      if (control.caption == caption) return control;
    ADD_FAILURE() << caption;
    return {};
  }
  bool Click(const std::string& bar, const std::string& caption) {
    return environment->Bars().Click(ControlOf(bar, caption).id);
  }

  FakeServices services;
  forms::HeadlessToolkit toolkit;
  std::shared_ptr<environment::Environment> environment =
      environment::Environment::Create(services.files, &services.clipboard);
  addin::Connect connect{services, toolkit};
};

TEST_F(Connecting, DisconnectingDuringAYieldOfTheWindowIsSafe) {
  Connect(ConnectMode::Startup);
  connect.Show(false);
  bool yielded = false;
  services.loop.on_do_events = [&] {
    if (!yielded) Disconnect();
    yielded = true;
  };
  connect.Show(true);
  EXPECT_TRUE(yielded);
  EXPECT_EQ(connect.mfrmAddIn(), nullptr);
  EXPECT_TRUE(toolkit.ShownForms().empty());
  services.loop.on_do_events = nullptr;
  Connect(ConnectMode::Startup);
  connect.Show(false);
  EXPECT_TRUE(WindowShown());
}

TEST_F(Connecting, AWindowThatOutlivedItsConnectionGoesAtTheNextUse) {
  const std::vector<std::function<void()>> uses = {[&] { Connect(ConnectMode::Startup); }, [&] { connect.Show(false); },
                                                   [&] { connect.mStart_EnterRunMode(); }, [&] { Disconnect(); }};
  for (const auto& use : uses) {
    Connect(ConnectMode::Startup);
    connect.Show(false);
    const auto window = std::make_shared<int>();
    connect.mfrmAddIn()->Resize = [&, window] { Disconnect(); };
    environment->EnterRunMode();
    ASSERT_EQ(connect.mfrmAddIn(), nullptr);
    EXPECT_EQ(window.use_count(), 2) << "a handler of its own was running";
    use();
    EXPECT_EQ(window.use_count(), 1);
    Disconnect();
  }
}

// Its settings cannot be written.
class RefusingSettings : public FakeSettings {
 public:
  void SaveSetting(const std::string&, const std::string&, const std::string&, const std::string&) override {
    ++refused;
    throw host::Error(5);
  }
  long refused = 0;
};

TEST_F(Connecting, SettingsThatRefuseKeepNothingFromEnding) {
  RefusingSettings settings;
  host::Services refusing{services.clipboard, services.prompts, settings,          services.app,    services.screen,
                          services.loop,      services.files,   services.pictures, services.printer};
  addin::Connect other{refusing, toolkit};
  other.AddinInstance_OnConnection(environment, ConnectMode::AfterStartup);
  other.Show(false);
  other.AddinInstance_OnDisconnection(DisconnectMode::UserClosed);
  EXPECT_EQ(settings.refused, 1);
  EXPECT_THAT(services.prompts.Texts(), IsEmpty());
  EXPECT_FALSE(other.FormDisplayed);
  EXPECT_EQ(other.mfrmAddIn(), nullptr);
  EXPECT_TRUE(toolkit.ShownForms().empty());
  EXPECT_THAT(Captions("Standard"), ElementsAre("Add Project", "Start", "Toolbox"));
}

TEST_F(Connecting, DisconnectingWhileARunMinimisesTheWindowIsSafe) {
  Connect(ConnectMode::Startup);
  connect.Show(false);
  bool resized = false;
  connect.mfrmAddIn()->Resize = [&] {
    resized = true;
    EXPECT_TRUE(toolkit.IsInAct()) << "what keeps the window until its handlers have ended";
    Disconnect();
  };
  environment->EnterRunMode();
  EXPECT_TRUE(resized);
  EXPECT_EQ(connect.mfrmAddIn(), nullptr);
}

TEST_F(Connecting, TheExternalModeMakesNoControlsAndShowsTheWindowAtOnce) {
  Connect(ConnectMode::External);
  EXPECT_THAT(Captions("Standard"), ElementsAre("Add Project", "Start", "Toolbox"));
  EXPECT_THAT(Captions("Add-Ins"), ElementsAre("Add-In Manager..."));
  EXPECT_TRUE(WindowShown());
}

TEST_F(Connecting, AStartupNeverShowsTheWindow) {
  SetSetting("1");
  Connect(ConnectMode::Startup);
  connect.AddinInstance_OnStartupComplete();
  EXPECT_EQ(connect.mfrmAddIn(), nullptr);
  EXPECT_FALSE(connect.FormDisplayed);
}

TEST_F(Connecting, AfterStartupTheSettingDecides) {
  SetSetting("1");
  Connect(ConnectMode::AfterStartup);
  EXPECT_TRUE(WindowShown());
}

TEST_F(Connecting, AfterStartupWithoutTheSettingTheWindowStaysAway) {
  Connect(ConnectMode::AfterStartup);
  EXPECT_FALSE(WindowShown());
  EXPECT_THAT(services.prompts.Texts(), IsEmpty());
}

TEST_F(Connecting, TheCommandLineModeMakesTheControlsAndIgnoresTheSetting) {
  SetSetting("1");
  Connect(ConnectMode::CommandLine);
  EXPECT_EQ(Captions("Standard").size(), 4u);
  EXPECT_FALSE(WindowShown());
}

TEST_F(Connecting, TheButtonStandsInFrontOfTheLastOne) {
  Connect(ConnectMode::Startup);
  EXPECT_THAT(Captions("Standard"), ElementsAre("Add Project", "Start", "Corvane - 2000", "Toolbox"));
  environment::BarControl button = ControlOf("Standard", "Corvane - 2000");
  EXPECT_EQ(button.type, 1);
  EXPECT_TRUE(button.visible);
  EXPECT_EQ(button.state, 0);
  EXPECT_EQ(button.style, 1);
}

TEST_F(Connecting, TheButtonHasItsFaceFromTheClipboard) {
  services.clipboard.text = "what the user copied";
  Connect(ConnectMode::Startup);
  EXPECT_THAT(services.pictures.loaded, ElementsAre("C:\\Corvane\\corvane.bmp"));
  ASSERT_NE(ControlOf("Standard", "Corvane - 2000").face, nullptr);
  EXPECT_EQ(ControlOf("Standard", "Corvane - 2000").face->bytes, "BM face");
  EXPECT_EQ(services.clipboard.text, "");
}

TEST_F(Connecting, WithoutThePictureTheButtonHasNoCaptionButWorks) {
  services.files.Remove("C:\\Corvane\\corvane.bmp");
  Connect(ConnectMode::Startup);
  EXPECT_EQ(Captions("Standard").size(), 4u);
  EXPECT_TRUE(Click("Standard", ""));
  EXPECT_TRUE(WindowShown());
}

TEST_F(Connecting, TheMenuItemStandsAtTheEnd) {
  Connect(ConnectMode::Startup);
  EXPECT_THAT(Captions("Add-Ins"), ElementsAre("Add-In Manager...", "&Corvane - 2000"));
}

TEST_F(Connecting, WithoutTheStandardBarTheErrorIsShown) {
  environment->Bars().RemoveBar("Standard");
  Connect(ConnectMode::Startup);
  EXPECT_THAT(services.prompts.Texts(), ElementsAre("Object variable or With block variable not set"));
  EXPECT_THAT(Captions("Add-Ins"), ElementsAre("Add-In Manager...", "&Corvane - 2000"));
}

TEST_F(Connecting, WithoutTheMenuTheErrorIsShownAndTheButtonWorks) {
  environment->Bars().RemoveBar("Add-Ins");
  Connect(ConnectMode::Startup);
  EXPECT_EQ(services.prompts.messages.size(), 1u);
  EXPECT_EQ(services.prompts.messages[0].style, host::vbOKOnly);
  Click("Standard", "Corvane - 2000");
  EXPECT_TRUE(WindowShown());
}

TEST_F(Connecting, TheButtonBringsTheWindowUpWithoutTheMenu) {
  Connect(ConnectMode::Startup);
  Click("Standard", "Corvane - 2000");
  Click("Standard", "Corvane - 2000");
  EXPECT_TRUE(WindowShown());
  EXPECT_TRUE(connect.FormDisplayed);
  EXPECT_THAT(toolkit.Popups(), IsEmpty());
}

TEST_F(Connecting, ShowingTwiceWithDisplayPopsUpTheMenuTheSecondTime) {
  Connect(ConnectMode::Startup);
  connect.Show(true);
  EXPECT_THAT(toolkit.Popups(), IsEmpty());
  connect.Show(true);
  ASSERT_EQ(toolkit.Popups().size(), 1u);
  EXPECT_EQ(toolkit.Popups()[0][0], "mnuIDE");
}

TEST_F(Connecting, TheMenuItemPopsUpTheMenuWhenTheButtonLoadedTheWindow) {
  Connect(ConnectMode::Startup);
  Click("Standard", "Corvane - 2000");
  Click("Add-Ins", "&Corvane - 2000");
  EXPECT_EQ(toolkit.Popups().size(), 1u);
}

TEST_F(Connecting, TheWindowGetsTheEnvironmentAndTheAddIn) {
  Connect(ConnectMode::Startup);
  connect.Show(false);
  EXPECT_EQ(connect.mfrmAddIn()->VBInstance, environment);
  EXPECT_EQ(connect.mfrmAddIn()->Connect, &connect);
  EXPECT_EQ(connect.mfrmAddIn()->lbxComp->ListCount(), 3);
}

TEST_F(Connecting, RunModeMinimisesTheWindow) {
  Connect(ConnectMode::Startup);
  connect.Show(false);
  environment->EnterRunMode();
  EXPECT_EQ(connect.mfrmAddIn()->WindowState(), forms::vbMinimized);
}

TEST_F(Connecting, RunModeLoadsAWindowThatWasNeverOpenedAndLeavesItsState) {
  Connect(ConnectMode::Startup);
  environment->EnterRunMode();
  ASSERT_NE(connect.mfrmAddIn(), nullptr);
  EXPECT_FALSE(connect.mfrmAddIn()->Visible());
  EXPECT_EQ(connect.mfrmAddIn()->WindowState(), forms::vbNormal);
  connect.Show(false);
  EXPECT_EQ(connect.mfrmAddIn()->lbxComp->ListCount(), 3);
}

// The window is still meant to be on the screen, though it is not loaded any more.
TEST_F(Connecting, AfterExitARunLoadsTheWindowOutOfSightAndMinimisesIt) {
  Connect(ConnectMode::Startup);
  connect.Show(false);
  auto& window = *connect.mfrmAddIn();
  window.tlbr.UserButtonClick(window.tlbr.PositionOf("pExit"));
  ASSERT_FALSE(window.IsLoaded());
  ASSERT_TRUE(connect.FormDisplayed);
  environment->EnterRunMode();
  EXPECT_TRUE(window.IsLoaded());
  EXPECT_FALSE(window.Visible());
  EXPECT_EQ(window.WindowState(), forms::vbMinimized);
  connect.Show(false);
  EXPECT_TRUE(window.Visible());
  EXPECT_EQ(window.WindowState(), forms::vbMinimized);
}

TEST_F(Connecting, AnEnvironmentWithoutBuildEventsWorksWithoutThem) {
  environment->SetOffersBuildEvents(false);
  Connect(ConnectMode::Startup);
  EXPECT_THAT(services.prompts.Texts(), IsEmpty());
  EXPECT_EQ(connect.mStart(), nullptr);
  Click("Standard", "Corvane - 2000");
  environment->EnterRunMode();
  EXPECT_EQ(connect.mfrmAddIn()->WindowState(), forms::vbNormal);
}

TEST_F(Connecting, DisconnectingWithTheWindowOpenStoresOne) {
  Connect(ConnectMode::Startup);
  connect.Show(false);
  Disconnect();
  EXPECT_EQ(Setting(), "1");
  EXPECT_FALSE(connect.FormDisplayed);
  EXPECT_EQ(connect.mfrmAddIn(), nullptr);
}

TEST_F(Connecting, DisconnectingWithTheWindowHiddenStoresZero) {
  Connect(ConnectMode::Startup);
  connect.Show(false);
  connect.Hide();
  EXPECT_TRUE(connect.mfrmAddIn()->IsLoaded());
  EXPECT_FALSE(WindowShown());
  Disconnect();
  EXPECT_EQ(Setting(), "0");
}

TEST_F(Connecting, DisconnectingWithTheWindowHiddenByEscStoresOne) {
  Connect(ConnectMode::Startup);
  connect.Show(false);
  connect.mfrmAddIn()->lbxProc->UserKeyPress(forms::vbKeyEscape);
  EXPECT_FALSE(WindowShown());
  Disconnect();
  EXPECT_EQ(Setting(), "1");
}

TEST_F(Connecting, DisconnectingAfterExitStoresOne) {
  Connect(ConnectMode::Startup);
  connect.Show(false);
  connect.mfrmAddIn()->tlbr.UserButtonClick(25);
  EXPECT_FALSE(connect.mfrmAddIn()->IsLoaded());
  Disconnect();
  EXPECT_EQ(Setting(), "1");
}

TEST_F(Connecting, DisconnectingWithoutTheWindowStoresZero) {
  Connect(ConnectMode::Startup);
  Disconnect();
  EXPECT_EQ(Setting(), "0");
}

TEST_F(Connecting, TheWindowIsUnloadedWithTheControlsGoneAndTheSettingSaved) {
  Connect(ConnectMode::Startup);
  connect.Show(false);
  bool unloaded = false;
  explorer::frmAddIn& window = *connect.mfrmAddIn();
  window.UnloadEvent = [&, unload = window.UnloadEvent](bool& cancel) {
    unloaded = true;
    EXPECT_EQ(Setting(), "1");
    EXPECT_FALSE(connect.FormDisplayed);
    EXPECT_EQ(connect.mfrmAddIn(), &window) << "let go of afterwards";
    EXPECT_EQ(Captions("Standard").size() + Captions("Add-Ins").size(), 4u);
    unload(cancel);
  };
  Disconnect();
  EXPECT_TRUE(unloaded);
  EXPECT_EQ(connect.mfrmAddIn(), nullptr);
}

TEST_F(Connecting, DisconnectingTakesTheControlsAway) {
  Connect(ConnectMode::Startup);
  Disconnect();
  EXPECT_THAT(Captions("Standard"), ElementsAre("Add Project", "Start", "Toolbox"));
  EXPECT_THAT(Captions("Add-Ins"), ElementsAre("Add-In Manager..."));
}

TEST_F(Connecting, DisconnectingTheExternalModeIsQuiet) {
  Connect(ConnectMode::External);
  Disconnect();
  EXPECT_EQ(Setting(), "1");
  EXPECT_THAT(services.prompts.Texts(), IsEmpty());
}

TEST_F(Connecting, ItConnectsAgainAfterwards) {
  for (int i = 0; i < 3; ++i) {
    Connect(ConnectMode::AfterStartup);
    EXPECT_EQ(Captions("Standard").size(), 4u);
    EXPECT_TRUE(Click("Standard", "Corvane - 2000"));
    EXPECT_TRUE(WindowShown());
    Disconnect();
    EXPECT_EQ(Captions("Standard").size(), 3u);
  }
}

TEST_F(Connecting, AWindowClosedFromInsideIsLoadedAfresh) {
  Connect(ConnectMode::Startup);
  connect.Show(false);
  connect.mfrmAddIn()->tlbr.UserButtonClick(25);
  connect.Show(false);
  EXPECT_TRUE(WindowShown());
  EXPECT_EQ(connect.mfrmAddIn()->lbxComp->ListCount(), 3);
}

TEST_F(Connecting, AClipboardThatFailsLeavesTheButtonAsItIs) {
  services.clipboard.fail_with = 521;
  Connect(ConnectMode::Startup);
  EXPECT_EQ(Captions("Standard").size(), 4u);
  EXPECT_THAT(services.prompts.Texts(), IsEmpty());
}

TEST(Descriptor, OfTheLibrary) {
  EXPECT_STREQ(addin::kRegistryRoot, "HKEY_CURRENT_USER\\Software\\Microsoft\\Visual Basic\\6.0");
  EXPECT_STREQ(addin::kFriendlyName, "Corvane - 2000");
  EXPECT_STREQ(addin::kDescription, "Powerfull Project Explorer with Color code analysis. ");
  EXPECT_STREQ(addin::kProgId, "corvane.Connect");
  EXPECT_STREQ(addin::kProjectDescription, "AddIn Corvane");
}

}  // namespace
}  // namespace corvane::tests
