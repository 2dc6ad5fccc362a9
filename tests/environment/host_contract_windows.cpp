// HostContract: windows, command bars and events.
#include "tests/environment/host_contract.h"

namespace corvane::tests {

using host::ControlType;
using host::Ref;

TEST_P(HostContract, TheMainWindowTakesTheFocus) {
  const auto window = Open({{"Main", false, ""}})->MainWindow();
  ASSERT_TRUE(window);
  EXPECT_NE(window->Caption(), "");
  EXPECT_EQ(ErrorOf([&] { window->SetFocus(); }), 0);
}

TEST_P(HostContract, TheImmediateWindowIsFoundByItsCaption) {
  const auto windows = Open({{"Main", false, ""}})->Windows();
  const auto immediate = windows->Item("Immediate");
  EXPECT_EQ(immediate->Caption(), "Immediate");
  EXPECT_EQ(ErrorOf([&] {
              immediate->SetVisible(true);
              immediate->SetFocus();
              immediate->SetVisible(false);
              immediate->Close();
            }),
            0);
  EXPECT_EQ(windows->Item("immediate")->Caption(), "Immediate") << "it is there when it is closed";
  EXPECT_EQ(ErrorOf([&] { windows->Item("No such window"); }), 9);
  EXPECT_EQ(ErrorOf([&] { windows->Item(0L); }), 9);
  EXPECT_EQ(ErrorOf([&] { windows->Item(windows->Count() + 1); }), 9);
}

TEST_P(HostContract, AnOpenCodePaneHasAWindow) {
  const auto pane = Code("one")->CodePane();
  pane->Show();
  const auto windows = vbe_->Windows();
  const long count = windows->Count();
  EXPECT_EQ(windows->Item(pane->Window()->Caption())->Caption(), pane->Window()->Caption());
  pane->Window()->Close();
  EXPECT_EQ(windows->Count(), count - 1);
  EXPECT_EQ(vbe_->CodePanes()->Count(), 0);
  EXPECT_FALSE(vbe_->ActiveCodePane());
}

TEST_P(HostContract, BarsAreFoundByNameInAnyCase) {
  const auto bars = Open({{"Main", false, ""}})->CommandBars();
  for (const char* name : {"Menu Bar", "Standard", "Add-Ins", "standard"})
    EXPECT_EQ(ErrorOf([&] { EXPECT_TRUE(bars->Item(name)->Controls()); }), 0) << name;
  EXPECT_EQ(bars->Item("standard")->Name(), "Standard");
  EXPECT_GE(bars->Count(), 3);
  EXPECT_EQ(ErrorOf([&] { bars->Item("No such bar"); }), 5);
  EXPECT_EQ(ErrorOf([&] { bars->Item(bars->Count() + 1); }), 5);
}

TEST_P(HostContract, ButtonsAreAddedInFrontOfOthersAndAtTheEnd) {
  const auto controls = Open({{"Main", false, ""}})->CommandBars()->Item("Standard")->Controls();
  const long count = controls->Count();
  controls->Add(ControlType::Button)->SetCaption("behind");
  controls->Add(ControlType::Button, count + 1)->SetCaption("&before");
  EXPECT_EQ(controls->Count(), count + 2);
  EXPECT_EQ(controls->Item(count + 1)->Caption(), "&before");
  EXPECT_EQ(controls->Item(count + 2)->Caption(), "behind");
  EXPECT_EQ(controls->Item("before")->Caption(), "&before");
  EXPECT_NE(ErrorOf([&] { controls->Item("No such control"); }), 0);
}

TEST_P(HostContract, ADeletedButtonIsGone) {
  const auto controls = Open({{"Main", false, ""}})->CommandBars()->Item("Add-Ins")->Controls();
  const long count = controls->Count();
  const auto button = controls->Add(ControlType::Button);
  EXPECT_EQ(ErrorOf([&] {
              button->SetVisible(true);
              button->SetState(0);
              button->SetStyle(host::ButtonStyle::Caption);
            }),
            0);
  button->Delete();
  EXPECT_EQ(controls->Count(), count);
  EXPECT_NE(ErrorOf([&] { button->SetCaption("late"); }), 0);
}

TEST_P(HostContract, AClickReachesItsHandlerWhileThatIsBound) {
  Open({{"Main", false, ""}});
  const auto controls = vbe_->CommandBars()->Item("Standard")->Controls();
  const auto ours = controls->Add(ControlType::Button), other = controls->Add(ControlType::Button);
  ours->SetCaption("ours");
  other->SetCaption("other");
  std::string heard;
  const auto hear = [&](const Ref<host::CommandBarControl>& control, bool&, bool&) {
    heard += control->Caption() + " ";
  };
  auto bound = vbe_->Events()->CommandBarEvents(ours)->OnClick(hear);
  const auto bound_other = vbe_->Events()->CommandBarEvents(other)->OnClick(hear);
  fixture_->Click("Standard", controls->Count());
  fixture_->Click("Standard", controls->Count() - 1);
  EXPECT_EQ(heard, "other ours ");
  bound.reset();
  fixture_->Click("Standard", controls->Count() - 1);
  EXPECT_EQ(heard, "other ours ");
}

TEST_P(HostContract, EventsOfNoControlAreError91) {
  const auto events = Open({{"Main", false, ""}})->Events();
  EXPECT_EQ(ErrorOf([&] { events->CommandBarEvents(nullptr); }), 91);
}

// Not every version of the environment tells of it.
TEST_P(HostContract, EnteringRunModeIsToldOrNotOffered) {
  const auto events = Open({{"Main", false, ""}})->Events();
  if (const long error = ErrorOf([&] { events->VBBuildEvents(); })) {
    EXPECT_EQ(error, 438);
    return;
  }
  long told = 0;
  auto bound = events->VBBuildEvents()->OnEnterRunMode([&] { ++told; });
  fixture_->EnterRunMode();
  EXPECT_EQ(told, 1);
  bound.reset();
  fixture_->EnterRunMode();
  EXPECT_EQ(told, 1);
}

}  // namespace corvane::tests
