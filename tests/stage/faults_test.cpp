// The library at bad moments and in bad places: a project that closes, a disconnection while something modal is open, a
// folder without data.
#include "tests/stage/story.h"

namespace corvane::stage {
namespace {

using testing::IsEmpty;

class Faults : public Story {
 protected:
  Faults() { OpenSmallProject(); }
};

TEST_F(Faults, TheProjectClosesWhileTheWindowIsOpen) {
  ASSERT_EQ(host.StartUp(), S_OK);
  Click("Standard", kButton);
  ASSERT_NE(Explorer(), nullptr);
  stage.CloseProject();
  Press(Components(), {VK_HOME, VK_DOWN, VK_DOWN});
  Press(Procedures(), {VK_HOME, VK_DOWN, VK_RETURN, VK_F5});
  EXPECT_NE(Explorer(), nullptr);
  EXPECT_EQ(host.ShutDown(), S_OK);
}

TEST_F(Faults, WithoutAProjectTheWindowOpens) {
  stage.CloseProject();
  ASSERT_EQ(host.StartUp(), S_OK);
  Click("Standard", kButton);
  EXPECT_NE(Explorer(), nullptr);
}

TEST_F(Faults, DisconnectionWhileTheAboutWindowIsOpen) {
  ASSERT_EQ(host.StartUp(), S_OK);
  Click("Standard", kButton);
  ASSERT_NE(Explorer(), nullptr);
  bool was_open = false, was_disabled = false;
  window.Later(400, [&] {
    was_open = FindShown("About Corvane") != nullptr;
    was_disabled = !IsWindowEnabled(window.Handle());
    EXPECT_EQ(host.UnloadByUser(), S_OK);
  });
  OpenAbout();
  EXPECT_TRUE(window.PumpUntil([&] { return was_open; }));
  EXPECT_TRUE(was_disabled);
  window.Settle();
  EXPECT_EQ(FindShown("About Corvane"), nullptr);
  EXPECT_EQ(Explorer(), nullptr);
}

// However it is closed, the window below has the focus again and the environment is alive.
TEST_F(Faults, TheAboutWindowGivesBackTheFocus) {
  ASSERT_EQ(host.StartUp(), S_OK);
  Click("Standard", kButton);
  ASSERT_NE(Explorer(), nullptr);
  for (const WORD key : {VK_RETURN, VK_ESCAPE, 0}) {
    SetFocus(Components());
    bool was_open = false;
    window.Later(400, [&] {
      const HWND about = FindShown("About Corvane");
      was_open = about != nullptr;
      EXPECT_FALSE(IsWindowEnabled(window.Handle()));
      EXPECT_FALSE(IsWindowEnabled(Explorer()));
      EXPECT_EQ(GetActiveWindow(), about);
      key != 0 ? PostKey(GetFocus(), key) : void(PostMessageW(about, WM_CLOSE, 0, 0));
    });
    OpenAbout();
    EXPECT_TRUE(window.PumpUntil([&] { return was_open && FindShown("About Corvane") == nullptr; })) << key;
    window.Settle();
    EXPECT_TRUE(IsWindowEnabled(window.Handle())) << key;
    EXPECT_TRUE(IsWindowEnabled(Explorer())) << key;
    EXPECT_EQ(GetActiveWindow(), Explorer()) << key;
    EXPECT_TRUE(IsChild(Explorer(), GetFocus())) << key;
  }
  EXPECT_THAT(window.commands, IsEmpty());
  stage.ledger.ClearCalls();
  Press(Procedures(), {VK_ESCAPE});
  EXPECT_EQ(stage.ledger.Calls("Window.SetFocus"), 1);
  EXPECT_EQ(GetActiveWindow(), window.Handle());
  EXPECT_EQ(GetFocus(), window.CodeArea());
}

TEST_F(Faults, DisconnectionWhileAMessageBoxIsOpen) {
  environment->Bars().RemoveBar("Standard");
  bool was_open = false;
  boxes.instead = [&](HWND box) {
    was_open = true;
    host.OnDisconnection(kUserClosed);
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  };
  ASSERT_EQ(host.StartUp(), S_OK);
  EXPECT_TRUE(was_open);
  EXPECT_EQ(FindOnBar("Add-Ins", kMenuItem), nullptr);
}

// The question for a clone's name. Whatever is answered once the add-in is gone comes to nothing.
TEST_F(Faults, DisconnectionWhileAnInputBoxIsOpen) {
  for (const WORD answer : {IDOK, IDCANCEL}) {
    ASSERT_EQ(host.StartUp(), S_OK);
    Click("Standard", kButton);
    ASSERT_NE(Explorer(), nullptr);
    Press(Components(), {VK_HOME, VK_DOWN});
    const long before = environment->ActiveVBProject()->VBComponents()->Count();
    bool was_open = false, was_disabled = false;
    boxes.instead = [&](HWND box) {
      const std::vector<HWND> fields = Below(box, "edit");
      was_open = fields.size() == 1;
      was_disabled = !IsWindowEnabled(window.Handle()) && !IsWindowEnabled(Explorer());
      if (was_open) SetWindowTextW(fields[0], L"modClone");
      EXPECT_EQ(host.UnloadByUser(), S_OK);
      PostMessageW(box, WM_COMMAND, answer, 0);
    };
    PressTool(14);
    EXPECT_TRUE(window.PumpUntil([&] { return was_open; }));
    EXPECT_TRUE(was_disabled);
    window.Settle();
    EXPECT_EQ(FindShownOfClass("#32770"), nullptr);
    EXPECT_EQ(Explorer(), nullptr);
    EXPECT_TRUE(IsWindowEnabled(window.Handle()));
    EXPECT_EQ(environment->ActiveVBProject()->VBComponents()->Count(), before);
    EXPECT_EQ(environment->ActiveVBProject()->VBComponents()->Item(1L)->Name(), "modMain");
    EXPECT_THAT(boxes.Take(), IsEmpty()) << answer;
  }
}

// Stories with libraries of their own: the usual one stands aside.
class OtherPlaces : public Story {
 protected:
  void Tell(const std::wstring& folder, bool with_data) {
    {
      InstalledLibrary other(folder, with_data);
      ASSERT_EQ(other.Register(), S_OK);
      ASSERT_EQ(host.StartUp(), S_OK);
      EXPECT_TRUE(other.IsLoaded());
      has_caption = FindOnBar("Standard", kButton) != nullptr;
      has_face = has_caption && FindOnBar("Standard", kButton)->face != nullptr;
      Click("Standard", has_caption ? kButton : "");
      opened = Explorer() != nullptr;
      EXPECT_EQ(host.ShutDown(), S_OK);
    }
    RegisterUsualLibrary();
  }
  bool has_caption = false, has_face = false, opened = false;
};

TEST_F(OtherPlaces, WithoutItsDataTheButtonHasNoCaptionButWorks) {
  Tell(L"empty", false);
  EXPECT_FALSE(has_caption);
  EXPECT_TRUE(opened);
  EXPECT_THAT(boxes.Boxes(), IsEmpty());
}

TEST_F(OtherPlaces, AFolderWithLettersOutsideTheCodePage) {
  Tell(L"\x0416\x6f22 \x05d0", true);
  EXPECT_TRUE(has_caption);
  EXPECT_TRUE(has_face);
  EXPECT_TRUE(opened);
}

TEST_F(OtherPlaces, AFolderWithLettersOfTheCodePage) {
  Tell(L"caf\x00e9 b\x00e4r", true);
  EXPECT_TRUE(has_face);
  EXPECT_TRUE(opened);
}

}  // namespace
}  // namespace corvane::stage
