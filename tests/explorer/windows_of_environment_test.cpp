// What the explorer does to the windows of the environment where one of them fails.
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

template <class Collection, class Element>
class FixedItems : public Collection {
 public:
  std::vector<host::Ref<Element>> items;
  long Count() override { return static_cast<long>(items.size()); }
  host::Ref<Element> Item(const host::Index& index) override {
    const long* position = std::get_if<long>(&index);
    if (position == nullptr || *position < 1 || *position > Count()) throw host::Error(runtime::kSubscriptOutOfRange);
    return items[static_cast<size_t>(*position - 1)];
  }
};

// Its component was removed behind it.
class LostPane : public host::CodePane {
 public:
  host::Ref<host::CodeModule> CodeModule() override { throw host::Error(runtime::kObjectNotSet); }
  host::Ref<host::Window> Window() override { throw host::Error(runtime::kObjectNotSet); }
  host::Selection GetSelection() override { throw host::Error(runtime::kObjectNotSet); }
  void SetSelection(const host::Selection&) override { throw host::Error(runtime::kObjectNotSet); }
  void Show() override { throw host::Error(runtime::kObjectNotSet); }
};

class NotedWindow : public host::Window {
 public:
  std::string acts;
  long focus_error = 0;
  std::string Caption() override { return "Immediate"; }
  void SetFocus() override {
    if (focus_error != 0) throw host::Error(focus_error);
    acts += "focus ";
  }
  void Close() override { acts += "close "; }
  void SetVisible(bool visible) override { acts += visible ? "show " : "hide "; }
};

class ImmediateAlone : public FixedItems<host::Windows, host::Window> {
 public:
  host::Ref<host::Window> Item(const host::Index&) override { return items.at(0); }
};

// The environment, but for what the test puts in its place.
class AlteredHost : public host::VBE {
 public:
  explicit AlteredHost(host::Ref<host::VBE> vbe) : vbe_(std::move(vbe)) {}
  bool has_project = true;
  host::Ref<host::CodePanes> panes;
  host::Ref<host::Windows> windows;

  host::Ref<host::VBProjects> VBProjects() override { return vbe_->VBProjects(); }
  host::Ref<host::VBProject> ActiveVBProject() override { return has_project ? vbe_->ActiveVBProject() : nullptr; }
  host::Ref<host::VBComponent> SelectedVBComponent() override { return vbe_->SelectedVBComponent(); }
  host::Ref<host::CodePane> ActiveCodePane() override { return vbe_->ActiveCodePane(); }
  host::Ref<host::CodePanes> CodePanes() override { return panes ? panes : vbe_->CodePanes(); }
  host::Ref<host::Windows> Windows() override { return windows ? windows : vbe_->Windows(); }
  host::Ref<host::Window> MainWindow() override { return vbe_->MainWindow(); }
  host::Ref<host::CommandBars> CommandBars() override { return vbe_->CommandBars(); }
  host::Ref<host::Events> Events() override { return vbe_->Events(); }

 private:
  host::Ref<host::VBE> vbe_;
};

class FailingWindows : public ExplorerTest {
 protected:
  FailingWindows() {
    OpenWindow({Bas("modMain", {"Sub Main()", "End Sub"}), Bas("modTill", {"Sub Ring()", "End Sub"})});
    for (const char* name : {"modMain", "modTill"}) Caret(name, 1);
    environment->SelectComponent(Component("modMain"));
    altered = std::make_shared<AlteredHost>(environment);
    form.VBInstance = altered;
  }
  long OpenPanes() { return environment->CodePanes()->Count(); }
  void Press(const char* key) {
    const int position = form.tlbr.PositionOf(key);
    toolkit.Guard([&] { form.tlbr.UserButtonClick(position); });
  }

  host::Ref<AlteredHost> altered;
};

TEST_F(FailingWindows, APaneThatFailsKeepsNoOtherOpen) {
  auto panes = std::make_shared<FixedItems<host::CodePanes, host::CodePane>>();
  panes->items = {std::make_shared<LostPane>(), Module("modTill").CodePane(), Module("modMain").CodePane()};
  altered->panes = panes;
  ASSERT_EQ(OpenPanes(), 2);
  Press("CloseWnd");
  ASSERT_EQ(OpenPanes(), 1);
  EXPECT_EQ(environment->CodePanes()->Item(1L)->CodeModule()->Name(), "modMain");
  EXPECT_THAT(toolkit.Faults(), ::testing::IsEmpty());
}

TEST_F(FailingWindows, WithoutAProjectThePanesCloseNevertheless) {
  altered->has_project = false;
  Press("CloseWnd");
  EXPECT_EQ(OpenPanes(), 1);
  EXPECT_THAT(toolkit.Faults(), ::testing::IsEmpty());
}

TEST_F(FailingWindows, WithoutAnImmediateWindowNoKeyIsSent) {
  altered->windows = std::make_shared<FixedItems<host::Windows, host::Window>>();
  Press("pImmed");
  EXPECT_THAT(services.loop.keys, ::testing::IsEmpty());
  EXPECT_THAT(toolkit.Faults(), ::testing::IsEmpty());
}

TEST_F(FailingWindows, AHiddenImmediateWindowIsShownBeforeItsKeys) {
  auto window = std::make_shared<NotedWindow>();
  auto windows = std::make_shared<ImmediateAlone>();
  windows->items = {window};
  altered->windows = windows;
  services.loop.on_send_keys = [&](const std::string& keys) { window->acts += keys + " "; };
  Press("pImmed");
  EXPECT_EQ(window->acts, "show focus ^({Home}) ^a {Del} ");
}

TEST_F(FailingWindows, AnImmediateWindowThatTakesNoFocusGetsNoKeys) {
  auto window = std::make_shared<NotedWindow>();
  auto windows = std::make_shared<ImmediateAlone>();
  windows->items = {window};
  window->focus_error = runtime::kInvalidProcedureCall;
  altered->windows = windows;
  Press("pImmed");
  EXPECT_THAT(services.loop.keys, ::testing::IsEmpty());
}

}  // namespace
}  // namespace corvane::tests
