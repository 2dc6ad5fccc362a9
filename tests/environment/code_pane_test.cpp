#include "environment/code_pane.h"

#include "tests/environment/designer_fixture.h"

namespace corvane::environment {
namespace {

using host::Selection;

// Only its name matters here.
class NamedModule : public host::CodeModule {
 public:
  explicit NamedModule(std::string name) : name_(std::move(name)) {}
  std::string Name() override { return name_; }
  long CountOfLines() override { return 0; }
  long CountOfDeclarationLines() override { return 0; }
  std::string Lines(long, long) override { return {}; }
  void InsertLines(long, const std::string&) override {}
  void DeleteLines(long, long) override {}
  void ReplaceLine(long, const std::string&) override {}
  std::string ProcOfLine(long, host::ProcKind&) override { return {}; }
  long ProcStartLine(const std::string&, host::ProcKind) override { return 0; }
  long ProcBodyLine(const std::string&, host::ProcKind) override { return 0; }
  long ProcCountLines(const std::string&, host::ProcKind) override { return 0; }
  bool Find(const std::string&, long&, long&, long&, long&, bool, bool, bool) override { return false; }
  host::Ref<host::CodePane> CodePane() override { return nullptr; }

 private:
  std::string name_;
};

struct Owner : PaneOwner {
  Owner(PaneList& list, WindowList& windows, std::string name) : name(name), pane(Pane::Create(list, windows, *this)) {}
  ~Owner() override { pane->Detach(); }
  host::Ref<host::CodeModule> PaneModule() override { return std::make_shared<NamedModule>(name); }
  std::string PaneCaption() override { return "Test - " + name + " (Code)"; }
  long PaneLines() override { return static_cast<long>(lines.size()); }
  long PaneLineLength(long line) override { return static_cast<long>(lines.at(static_cast<size_t>(line) - 1).size()); }
  void PaneWasShown() override { told += "shown "; }
  void PaneWasClosed() override { told += "closed "; }
  void PaneSelectionSet() override { told += "selected "; }

  std::string name, told;
  std::vector<std::string> lines = {"abc", "", "abcdef"};
  std::shared_ptr<Pane> pane;
};

struct CodePaneTest : testing::Test {
  PaneList panes;
  WindowList windows;
  Owner a{panes, windows, "A"}, b{panes, windows, "B"};
};

std::string NameOf(const host::Ref<host::CodePane>& pane) {
  return pane ? pane->CodeModule()->Name() : "none";
}

TEST_F(CodePaneTest, SelectionsAreClippedToTheText) {
  struct {
    Selection set, got;
  } const cases[] = {
      {{1, 1, 1, 1}, {1, 1, 1, 1}}, {{1, 2, 3, 4}, {1, 2, 3, 4}}, {{1, 4, 1, 99}, {1, 4, 1, 4}},
      {{2, 5, 2, 5}, {2, 1, 2, 1}}, {{1, 1, 2, 1}, {1, 1, 2, 1}}, {{0, 0, -1, -1}, {1, 1, 1, 1}},
      {{9, 1, 9, 9}, {3, 7, 3, 7}}, {{1, 1, 4, 1}, {1, 1, 3, 7}}, {{3, 2, 1, 1}, {3, 2, 3, 2}},
      {{3, 3, 3, 2}, {3, 3, 3, 3}},
  };
  for (const auto& c : cases) {
    a.pane->SetSelection(c.set);
    EXPECT_EQ(a.pane->GetSelection(), c.got) << c.set.start_line << "," << c.set.start_column << " " << c.set.end_line;
  }
}

TEST_F(CodePaneTest, AnEmptyModuleHasOnePlace) {
  a.lines.clear();
  a.pane->SetSelection({5, 5, 6, 6});
  EXPECT_EQ(a.pane->GetSelection(), (Selection{1, 1, 1, 1}));
}

TEST_F(CodePaneTest, OnlyOpenPanesAreListedAndTheLastShownIsActive) {
  EXPECT_EQ(NameOf(panes.Active()), "none");
  a.pane->OpenOnDemand();
  EXPECT_EQ(NameOf(panes.Active()), "A");
  b.pane->Show();
  EXPECT_EQ(NameOf(panes.Active()), "B");
  EXPECT_EQ(panes.Count(), 2);
  EXPECT_EQ(NameOf(panes.Item(1L)), "A") << "in the order of opening";
  EXPECT_EQ(NameOf(panes.Item("b")), "B");
  a.pane->Activate();
  EXPECT_EQ(NameOf(panes.Active()), "A");
  a.pane->Close();
  EXPECT_EQ(NameOf(panes.Active()), "B");
  EXPECT_EQ(panes.Count(), 1);
  EXPECT_EQ(a.told, "closed ");
  EXPECT_EQ(b.told, "shown ");
  EXPECT_EQ(ErrorOf([&] { panes.Item(2L); }), 9);
}

TEST_F(CodePaneTest, APaneOpenedOnDemandStaysBehind) {
  a.pane->Show();
  b.pane->OpenOnDemand();
  EXPECT_EQ(NameOf(panes.Active()), "A");
}

TEST_F(CodePaneTest, TheUsersSelectionTellsNobody) {
  a.pane->UserSelect({1, 2, 1, 99});
  EXPECT_EQ(a.pane->GetSelection(), (Selection{1, 2, 1, 4}));
  EXPECT_EQ(a.told, "");
  a.pane->SetSelection({1, 1, 1, 1});
  EXPECT_EQ(a.told, "selected ");
}

TEST_F(CodePaneTest, TheSelectionStaysOnItsTextWhenLinesChange) {
  struct {
    long start, removed, inserted;
    Selection got;
  } const cases[] = {
      {1, 0, 2, {5, 2, 5, 4}},  // two lines before it
      {1, 1, 0, {2, 2, 2, 4}},  // one line less
      {4, 1, 5, {3, 2, 3, 4}},  // behind it
      {3, 1, 1, {3, 2, 3, 4}},  // its own line replaced
      {2, 3, 0, {2, 1, 2, 1}},  // its line is gone
  };
  for (const auto& c : cases) {
    a.lines.assign(6, "abcdef");
    a.pane->UserSelect({3, 2, 3, 4});
    a.lines.assign(static_cast<size_t>(6 - c.removed + c.inserted), "abcdef");
    a.pane->LinesChanged(c.start, c.removed, c.inserted);
    EXPECT_EQ(a.pane->GetSelection(), c.got) << c.start << " " << c.removed << " " << c.inserted;
  }
}

TEST_F(CodePaneTest, ItsWindowIsListedWhileItIsOpen) {
  const auto window = a.pane->Window();
  EXPECT_EQ(window->Caption(), "Test - A (Code)");
  EXPECT_EQ(windows.Count(), 0);
  window->SetFocus();
  EXPECT_EQ(windows.Count(), 1);
  EXPECT_EQ(NameOf(panes.Active()), "A");
  window->Close();
  EXPECT_FALSE(a.pane->IsOpen());
  window->SetVisible(true);
  EXPECT_TRUE(a.pane->IsOpen());
  EXPECT_EQ(a.told, "shown closed shown ");
}

TEST_F(CodePaneTest, APaneOfARemovedModuleIsGone) {
  host::Ref<host::CodePane> kept;
  host::Ref<host::Window> window;
  {
    Owner c(panes, windows, "C");
    c.pane->Show();
    kept = c.pane;
    window = c.pane->Window();
  }
  EXPECT_EQ(panes.Count(), 0);
  EXPECT_EQ(windows.Count(), 0);
  EXPECT_EQ(NameOf(panes.Active()), "none");
  EXPECT_EQ(ErrorOf([&] { kept->Show(); }), 91);
  EXPECT_EQ(ErrorOf([&] { kept->GetSelection(); }), 91);
  EXPECT_EQ(ErrorOf([&] { window->Close(); }), 91);
}

}  // namespace
}  // namespace corvane::environment
