// The current component, and what the keys of other tools do with it.
#include "explorer/toolbar.h"
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

constexpr char kNoDesigner[] =
    "Current component has not a designer.\r\n"
    "Designer is not available.";

class ComponentActionTest : public ExplorerTest {
 protected:
  const Sources kShop = {Frm("frmMain", {"Private Sub Form_Load()", "End Sub"}),
                         Bas("modMain", {"Public total", "Public Sub Ring()", "End Sub"}),
                         Bas("B", {"Public x", "Public y"})};

  void SetUp() override {
    tools.CopyProperties = [this](const std::string& component) {
      asked.push_back("copy " + component);
      return copied;
    };
    tools.PasteProperties = [this](const std::string& component, const std::string& what) {
      asked.push_back("paste " + component + " " + what);
    };
    tools.ShowMap = [this](const host::Ref<host::VBComponents>& components, const std::string& title) {
      asked.push_back("map " + std::to_string(components->Count()) + " " + title);
    };
    tools.ShowNotes = [this](const host::Ref<host::VBProject>& project) {
      asked.push_back("notes " + project->Name());
      return stays;
    };
  }
  void OpenWithTools() {
    OpenWindow(kShop);
    form.SetTools(tools);
  }
  void Press(const char* key) { form.tlbr.UserButtonClick(form.tlbr.PositionOf(key)); }
  // The lists as a search leaves them.
  void ListHitOf(const std::string& label) {
    form.lbxComp->Click = [] {};
    form.lbxComp->Clear();
    form.lbxComp->AddItem(explorer::kResult);
    form.lbxComp->SetListIndex(0);
    form.lbxProc->Clear();
    AddHit(label, 1, 1, "Private Sub Form_Load()");
    form.lbxProc->UserSelect(0);
  }
  bool IsEnabled(const char* key) const { return form.tlbr.Button(form.tlbr.PositionOf(key)).Enabled; }

  explorer::ToolWindows tools;
  std::vector<std::string> asked;
  std::string copied = "frmMain.copy";
  bool stays = true;
};

TEST_F(ComponentActionTest, WithoutTheirToolsTheKeysAreDisabled) {
  OpenWindow(kShop);
  for (const char* key : {"aCopy", "aPaste", "Pen", "Note", "Map", "Start"}) EXPECT_FALSE(IsEnabled(key)) << key;
  const auto& entries = form.tlbr.Button(form.tlbr.PositionOf("Actions")).ButtonMenus;
  EXPECT_EQ(entries.at(1).Text, "Weaver WorkShop");
  EXPECT_FALSE(entries.at(1).Enabled);
  EXPECT_TRUE(entries.at(0).Enabled);
}

TEST_F(ComponentActionTest, WithTheirToolsTheKeysAreEnabled) {
  OpenWithTools();
  for (const char* key : {"aCopy", "Note", "Map"}) EXPECT_TRUE(IsEnabled(key)) << key;
}

TEST_F(ComponentActionTest, PasteIsEnabledByACopyAndStaysSo) {
  OpenWithTools();
  EXPECT_FALSE(IsEnabled("aPaste"));
  ChooseComponent("frmMain");
  Press("aCopy");
  EXPECT_TRUE(IsEnabled("aPaste"));
  Press("aPaste");
  EXPECT_THAT(asked, ElementsAre("copy frmMain", "paste frmMain frmMain.copy"));
  EXPECT_TRUE(IsEnabled("aPaste"));
}

TEST_F(ComponentActionTest, ACopyOfNothingEnablesNothing) {
  OpenWithTools();
  ChooseComponent("frmMain");
  for (const char* reference : {"", "x"}) {
    copied = reference;
    Press("aCopy");
    EXPECT_FALSE(IsEnabled("aPaste")) << reference;
  }
}

TEST_F(ComponentActionTest, AModuleHasNoDesigner) {
  OpenWithTools();
  ChooseComponent("modMain");
  Press("aCopy");
  EXPECT_THAT(Messages(), ElementsAre(kNoDesigner));
  EXPECT_THAT(asked, IsEmpty());
}

TEST_F(ComponentActionTest, AComponentOfOneLetterIsNone) {
  OpenWithTools();
  ChooseComponent("B");
  Press("Map");
  Press("Actions");
  EXPECT_THAT(Messages(), ElementsAre(kNoDesigner, kNoDesigner));
}

TEST_F(ComponentActionTest, TheMapShowsTheProjectUnderTheTitleOfTheCode) {
  OpenWithTools();
  ChooseComponent("modMain");
  ChooseProcedure("Public Sub Ring()");
  Press("Map");
  EXPECT_THAT(asked, ElementsAre("map 3 Public Sub Ring()"));
}

TEST_F(ComponentActionTest, InTheGlobalsTheMapTakesTheRowsComponent) {
  OpenWithTools();
  ChooseComponent(" Project Globals");
  ChooseProcedure("Public Sub Ring()");
  Press("Map");
  EXPECT_THAT(asked, ElementsAre(StartsWith("map 3 ")));
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(ComponentActionTest, InTheGlobalsTheOthersTakeTheActivePanesComponent) {
  OpenWithTools();
  Caret("frmMain", 1);
  ChooseComponent(" Project Globals");
  Press("aCopy");
  EXPECT_THAT(asked, ElementsAre("copy frmMain"));
}

TEST_F(ComponentActionTest, WithoutAPaneThereIsNone) {
  OpenWithTools();
  ChooseComponent(" Project Globals");
  Press("aCopy");
  EXPECT_THAT(Messages(), ElementsAre(kNoDesigner));
}

TEST_F(ComponentActionTest, AHitNamesItsComponentInFrontOfTheColon) {
  OpenWithTools();
  ListHitOf("frmMain");
  Press("aCopy");
  EXPECT_THAT(asked, ElementsAre("copy frmMain"));
}

TEST_F(ComponentActionTest, AHitOfAnotherProjectFindsNoComponent) {
  OpenWithTools();
  ListHitOf("_Till.frmMain");
  Press("aCopy");
  EXPECT_THAT(Messages(), ElementsAre(kNoDesigner));
}

TEST_F(ComponentActionTest, AResultOfThePropertiesNamesItsModuleAbove) {
  OpenWithTools();
  form.txtCode.Clear();
  form.lblSub.SetCaption(explorer::kSearchResult);
  form.txtCode.AddStr(
      "ModuleName = \x02"
      "frmMain");
  form.txtCode.AddStr("  Component = Text1");
  form.txtCode.SetStrPos(2);
  Press("aCopy");
  EXPECT_THAT(asked, ElementsAre("copy frmMain"));
}

TEST_F(ComponentActionTest, AboveTheFirstModuleOfAResultNothingHappens) {
  OpenWithTools();
  form.txtCode.Clear();
  form.lblSub.SetCaption(explorer::kSearchResult);
  form.txtCode.AddStr("nothing here");
  form.txtCode.SetStrPos(1);
  Press("aCopy");
  Press("Map");
  EXPECT_THAT(asked, IsEmpty());
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(ComponentActionTest, NotesHideTheExplorerUnlessItStays) {
  OpenWithTools();
  Press("Note");
  EXPECT_TRUE(form.Visible());
  stays = false;
  Press("Note");
  EXPECT_FALSE(form.Visible());
  EXPECT_THAT(asked, ElementsAre("notes Shop", "notes Shop"));
}

TEST_F(ComponentActionTest, TheToolsMenuHasAllKeysForTheKeyboard) {
  OpenWithTools();
  form.UserKeyDown('T', forms::vbCtrlMask);
  ASSERT_EQ(toolkit.Popups().size(), 1u);
  for (const explorer::Tool& tool : explorer::Tools()) {
    if (tool.IsSeparator()) continue;
    const std::string text = IsEnabled(tool.key) ? tool.tip : "(" + std::string(tool.tip) + ")";
    EXPECT_THAT(toolkit.Popups()[0], Contains(HasSubstr(text)));
  }
}

TEST_F(ComponentActionTest, AnEntryOfTheToolsMenuDoesWhatTheKeyDoes) {
  OpenWithTools();
  ChooseComponent("frmMain");
  for (const char* entry : {"Copy Component Properties", "Paste Component Properties"}) {
    toolkit.OnPopup(entry);
    form.UserKeyDown('T', forms::vbCtrlMask);
  }
  EXPECT_THAT(asked, ElementsAre("copy frmMain", "paste frmMain frmMain.copy"));
  services.prompts.inputs.push_back("x");
  toolkit.OnPopup("Clone current Component");
  form.UserKeyDown('T', forms::vbCtrlMask);
  EXPECT_EQ(services.prompts.input_boxes.size(), 1u);
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
}

}  // namespace
}  // namespace corvane::tests
