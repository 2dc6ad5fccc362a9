// The explorer in the environment, end to end: what its user does, and what comes of it there.
#include "tests/stage/late.h"
#include "tests/stage/story.h"
#include "tests/support/sources.h"

namespace corvane::stage {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

constexpr char kGlobals[] = " Project Globals", kDeclarations[] = " Declarations";

class Exploring : public Story {
 protected:
  void Open() {
    ASSERT_EQ(host.StartUp(), S_OK);
    Click("Standard", kButton);
    ASSERT_NE(Explorer(), nullptr);
  }
  void ClickOn(HWND control) {
    PostClick(control);
    window.Settle();
  }
  void ClickAt(int left, int top) { ClickOn(ControlAt(Explorer(), left, top)); }
  void Tool(int position) {
    PressTool(position);
    window.Settle();
  }
  // In place of what stands there, with Enter behind it.
  void Type(HWND field, const std::string& letters) {
    SetFocus(field);
    SendMessageW(GetFocus(), EM_SETSEL, 0, -1);
    for (const char letter : letters) PostKey(GetFocus(), LOBYTE(VkKeyScanA(letter)));
    window.Settle();
    Key(VK_RETURN);
  }
  // Names compare without case there.
  void Choose(const std::string& component) {
    Type(Components(), component);
    ASSERT_EQ(CaptionOf(Components()), component);
  }
  // What stands in front of the blanks of each row of the procedures.
  std::vector<std::string> ProcedureNames() const {
    std::vector<std::string> names;
    for (const std::string& row : RowsOf(Procedures())) names.push_back(row.substr(0, row.find("   ")));
    return names;
  }
  // The line that the environment's caret is on.
  std::string LineOfCaret() const {
    const auto pane = environment->ActiveCodePane();
    return pane ? pane->CodeModule()->Lines(pane->GetSelection().start_line, 1) : "no pane";
  }
};

TEST_F(Exploring, AKindButtonListsItsKindAlone) {
  Open();
  ClickAt(2670, 495);  // forms
  EXPECT_THAT(RowsOf(Components()), ElementsAre(kGlobals, "frmAbout", "frmArticle", "frmArticles", "frmImport",
                                                "frmLabels", "frmMovements", "frmOrders", "frmSuppliers", "mdiMain"));
  ClickAt(5070, 495);  // classes
  EXPECT_THAT(RowsOf(Components()), ElementsAre(kGlobals, "clsArticle", "clsArticles", "clsMovement", "clsOrder",
                                                "clsStore", "clsSupplier", "IRecord"));
  ClickAt(3795, 495);  // user controls
  EXPECT_THAT(RowsOf(Components()), ElementsAre(kGlobals, "BinMap"));
  EXPECT_EQ(CaptionOf(Components()), "BinMap") << "the only one is chosen";
  ClickAt(1275, 495);  // all
  EXPECT_EQ(RowsOf(Components()).size(), 23u);
}

TEST_F(Exploring, AFilterLeavesTheNamesThatHoldIt) {
  Open();
  Type(ComponentFilter(), "ord");
  EXPECT_THAT(RowsOf(Components()), ElementsAre(kGlobals, "clsOrder", "frmOrders", "IRecord"));
  Choose("clsOrder");
  const auto all = ProcedureNames();
  EXPECT_GT(all.size(), 2u);
  Type(ProcedureFilter(), "total");
  EXPECT_THAT(ProcedureNames(), ElementsAre(kDeclarations, "Public Property Get Total() As Currency"));
}

TEST_F(Exploring, ADoubleClickInTheCodeGoesToThatLine) {
  Open();
  Choose("BinMap");
  Press(Procedures(), {VK_HOME, VK_DOWN});
  ASSERT_EQ(ProcedureNames()[1], "Private Property Get CellHeight() As Single");
  ASSERT_EQ(environment->ActiveCodePane(), nullptr);
  const auto double_click = [this](int y) {
    PostDoubleClick(CodeView(), 60, y);
    window.Settle();
  };
  double_click(6);
  EXPECT_EQ(LineOfCaret(), "Private Property Get CellHeight() As Single");
  EXPECT_EQ(stage.ledger.Calls("CodePane.SetSelection"), 1);
  EXPECT_EQ(stage.ledger.Calls("CodePane.Show"), 1);
  double_click(24);
  EXPECT_EQ(LineOfCaret(), "    CellHeight = (UserControl.ScaleHeight - 15) / mShelves");
  EXPECT_EQ(stage.ledger.Calls("CodePane.Show"), 2);
}

TEST_F(Exploring, TheDesignerOfAComponentIsOpened) {
  Open();
  Choose("BinMap");
  const auto component = environment->ActiveVBProject()->VBComponents()->Item("BinMap");
  ASSERT_FALSE(component->HasOpenDesigner());
  ClickOn(DesignerButton());
  EXPECT_TRUE(component->HasOpenDesigner());
  EXPECT_EQ(stage.ledger.Calls("Window.SetFocus"), 1);
  EXPECT_THAT(boxes.Boxes(), IsEmpty());
  Choose("modApi");
  ClickOn(DesignerButton());
  EXPECT_THAT(boxes.Boxes(), ElementsAre("Current component has not a designer.\r\nDesigner is not available."));
}

TEST_F(Exploring, TheSecondPairOfListsLeavesTheFirstAlone) {
  Open();
  Choose("BinMap");
  const auto first = ProcedureNames();
  const HWND pairs = ControlAt(Explorer(), 7140, 495);
  ClickOn(ControlAt(pairs, 1605, 30));
  EXPECT_THAT(RowsOf(Components()), IsEmpty()) << "nothing was listed in it yet";
  Tool(8);
  Type(Components(), "modCsv");
  EXPECT_EQ(CaptionOf(Components()), "BinMap") << "the first choice goes on with the component that was in view";
  Choose("modCsv");
  EXPECT_NE(ProcedureNames(), first);
  ClickOn(ControlAt(pairs, 0, 30));
  EXPECT_EQ(CaptionOf(Components()), "BinMap");
  EXPECT_EQ(ProcedureNames(), first);
  ClickOn(ControlAt(pairs, 1605, 30));
  EXPECT_EQ(CaptionOf(Components()), "modCsv");
}

TEST_F(Exploring, RefreshListsWhatCameMeanwhile) {
  Open();
  const auto components = environment->ActiveVBProject()->VBComponents();
  const auto add = [&](const std::string& name) {
    files.Put("C:\\" + name + ".bas", "Attribute VB_Name = \"" + name + "\"\r\nSub A()\r\nEnd Sub\r\n");
    components->AddFile("C:\\" + name + ".bas");
  };
  add("modOne");
  EXPECT_THAT(RowsOf(Components()), Not(Contains("modOne"))) << "a list is true when it is filled";
  Tool(8);
  EXPECT_THAT(RowsOf(Components()), Contains("modOne"));
  add("modTwo");
  Press(Procedures(), {VK_F5});
  EXPECT_THAT(RowsOf(Components()), Contains("modTwo"));
}

TEST_F(Exploring, ExitClosesTheWindowAndTheNextConnectionOpensIt) {
  Open();
  Tool(25);
  EXPECT_EQ(Explorer(), nullptr);
  EXPECT_EQ(host.ShutDown(), S_OK);
  EXPECT_EQ(Setting(), "1");
  ASSERT_EQ(host.LoadByUser(), S_OK);
  window.Settle();
  EXPECT_NE(Explorer(), nullptr);
}

// The window is still meant to be on the screen: a run loads it out of sight and minimises it.
TEST_F(Exploring, AfterExitARunLeavesTheWindowMinimised) {
  Open();
  Tool(25);
  ASSERT_EQ(Explorer(), nullptr);
  environment->EnterRunMode();
  window.Settle();
  EXPECT_EQ(Explorer(), nullptr);
  EXPECT_THAT(ShownWindows(window.Handle()), IsEmpty());
  Click("Standard", kButton);
  ASSERT_NE(Explorer(), nullptr);
  EXPECT_TRUE(IsIconic(Explorer()));
}

TEST_F(Exploring, HiddenByNameItStaysAwayTheNextTime) {
  Open();
  Late add_in(ComPointer<IDispatch>::Shared(host.AddIn()));
  add_in.Get("Hide");
  EXPECT_EQ(add_in.Last().code, S_OK);
  EXPECT_EQ(Explorer(), nullptr);
  EXPECT_EQ(host.ShutDown(), S_OK);
  EXPECT_EQ(Setting(), "0");
  ASSERT_EQ(host.LoadByUser(), S_OK);
  window.Settle();
  EXPECT_EQ(Explorer(), nullptr);
}

}  // namespace
}  // namespace corvane::stage
