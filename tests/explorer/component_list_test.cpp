// The list of components: what is listed, by which filter, and what a choice shows.
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class ComponentList : public ExplorerTest {
 protected:
  const Sources kShop = {
      Frm("frmMain", {"Option Explicit", "", "Private Sub Form_Load()", "End Sub", "", "Sub Fill()", "End Sub"}),
      Bas("modMain", {"Public Total As Long", "", "Public Sub Main()", "End Sub", "", "Private Sub Tidy()", "End Sub"}),
      Cls("clsItem", {"Private mName", "", "Property Get Name()", "End Property"}),
      Ctl("ucGrid", {"Option Explicit", "", "Sub Draw()", "End Sub"}),
      MdiFrm("frmDesk", {"Option Explicit", "", "Sub Tile()", "End Sub"}),
      Pag("pagColours", {"Option Explicit", "", "Sub Apply()", "End Sub"}),
  };
};

TEST_F(ComponentList, OpeningTheWindowWithoutACodePaneListsTheProjectWithoutAMessage) {
  OpenWindow(kShop);
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_TRUE(form.optProj.Value());
  EXPECT_THAT(Components(),
              ElementsAre(" Project Globals", "clsItem", "frmDesk", "frmMain", "modMain", "pagColours", "ucGrid"));
  EXPECT_EQ(form.lbxComp->ListIndex(), 0);
}

TEST_F(ComponentList, OpeningTheWindowPaintsOnceBeforeTheProjectIsListed) {
  Open(kShop);
  form.VBInstance = environment;
  form.LoadForm();
  long paints = 0;
  services.loop.on_do_events = [&] { paints += Components() == std::vector<std::string>{explorer::kProjectGlobals}; };
  form.Activate();
  services.loop.on_do_events = nullptr;
  EXPECT_EQ(paints, 1);
  EXPECT_EQ(Components().size(), 7u);
}

TEST_F(ComponentList, ARowCarriesThePositionOfItsComponent) {
  OpenWindow(kShop);
  EXPECT_EQ(form.lbxComp->ItemData(0), 0);
  EXPECT_EQ(form.lbxComp->ItemData(RowOf(Components(), "frmMain")), 1);
  EXPECT_EQ(form.lbxComp->ItemData(RowOf(Components(), "ucGrid")), 4);
}

TEST_F(ComponentList, TheGlobalsListTheProceduresOfStandardModules) {
  OpenWindow(kShop);
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Private Sub Tidy()", "Public Sub Main()"));
  EXPECT_EQ(form.lbxProc->List(2), "Public Sub Main()" + std::string(160, ' ') + " +|2");
  EXPECT_EQ(form.lbxProc->ItemData(2), 3);
}

TEST_F(ComponentList, TheGlobalsShowTheDeclarationsOfStandardModules) {
  OpenWindow(kShop);
  const std::string stars = " ****************************** ";
  EXPECT_THAT(CodeRows(), ElementsAre(stars + "Standart Module: modMain" + stars, "Public Total As Long"));
  EXPECT_FALSE(form.txtCode.NoAnalyse);
}

TEST_F(ComponentList, AStandardModuleWithoutDeclarationsIsNotAmongTheGlobals) {
  OpenWindow({Bas("modA", {"Public a"}), Bas("modB", {"Sub Alone()", "End Sub"}), Bas("modC", {"Public c", "Dim d"})});
  EXPECT_THAT(Procedures(), ElementsAre("Declarations"));
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "modB", "modC"));
}

TEST_F(ComponentList, TheCaptionTellsTheProjectFile) {
  OpenWindow(kShop);
  EXPECT_EQ(form.Caption(), "Corvane V 1.0 ( C:\\Test\\Shop.vbp )");
  form.axAllComp.Click();
  EXPECT_EQ(form.Caption(), "Corvane V 1.0 ( C:\\Test\\Shop.vbp )");
}

TEST_F(ComponentList, AProjectThatWasNeverSavedHasNoFileInTheCaption) {
  environment->OpenFromTexts("", "Type=Exe\r\nModule=modMain; modMain.bas\r\nName=\"Shop\"\r\n",
                             {Bas("modMain", {"Public a", "Dim b"})});
  OpenWindow();
  EXPECT_EQ(form.Caption(), "Corvane V 1.0 (  )");
}

TEST_F(ComponentList, AProjectWithExactlyOneListedComponentOpensIt) {
  OpenWindow({Frm("frmMain", {"Option Explicit", "", "Private Sub Form_Load()", "End Sub"})});
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "frmMain"));
  EXPECT_EQ(form.lbxComp->ListIndex(), 1);
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Private Sub Form_Load()"));
  EXPECT_THAT(CodeRows(), ElementsAre("Option Explicit"));
}

TEST_F(ComponentList, TheNameFilterIsAppliedOnceAndTheBoxIsEmptied) {
  OpenWindow(kShop);
  form.txtFind.SetText("frm");
  Press(form.txtFind, forms::vbKeyReturn);
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "frmDesk", "frmMain"));
  EXPECT_EQ(form.txtFind.Text(), "");
  EXPECT_TRUE(form.lbxComp->HasFocus());
  form.axAllComp.Click();
  EXPECT_EQ(Components().size(), 7u);
}

TEST_F(ComponentList, WhatWasListedIsKeptForTheKeyBackIfItsNameHasThreeCharacters) {
  OpenWindow({Bas("A1", {"Public a", "Dim b"}), Bas("A12", {"Public c", "Dim d"})});
  form.lbxComp->UserSelect(1);
  ASSERT_EQ(form.lbxComp->Text(), "A1");
  form.axAllComp.Click();
  EXPECT_FALSE(form.cmdPrev.Enabled());
  ChooseComponent("A12");
  form.axAllComp.Click();
  EXPECT_TRUE(form.cmdPrev.Enabled());
}

TEST_F(ComponentList, ANameFilterThatLeavesOneComponentOpensIt) {
  OpenWindow(kShop);
  form.txtFind.SetText("ITEM");
  Press(form.txtFind, forms::vbKeyReturn);
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "clsItem"));
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Property Get Name()"));
}

TEST_F(ComponentList, AnotherKeyInTheFilterDoesNothing) {
  OpenWindow(kShop);
  form.txtFind.SetText("frm");
  Press(form.txtFind, 'x');
  EXPECT_EQ(form.txtFind.Text(), "frm");
}

TEST_F(ComponentList, ComponentsOfNoOrOneLineAreNotListed) {
  OpenWindow({Frm("frmEmpty", {}), Cls("clsLine", {"Option Explicit"}), Bas("modLine", {"Public Total As Long"}),
              Frm("frmMain", {"Option Explicit", ""}), Frm("frmOther", {"Option Explicit", ""})});
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "frmMain", "frmOther"));
}

TEST_F(ComponentList, AStandardModuleOfOneLineStillAddsItsDeclarations) {
  OpenWindow({Bas("modLine", {"Public Total As Long"}), Frm("frmA", {"Dim a", ""}), Frm("frmB", {"Dim b", ""})});
  EXPECT_THAT(CodeRows(), Contains("Public Total As Long"));
}

TEST_F(ComponentList, AnEmptyProjectShowsNothingButTheGlobals) {
  OpenWindow({Frm("frmEmpty", {})});
  EXPECT_THAT(Components(), ElementsAre(" Project Globals"));
  EXPECT_THAT(CodeRows(), IsEmpty());
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(ComponentList, RelatedDocumentsAreLeftOutButCounted) {
  environment->OpenFromTexts(
      "C:\\Test\\Shop.vbp",
      "Type=Exe\r\nRelatedDoc=notes.txt\r\nModule=modMain; modMain.bas\r\n"
      "Class=clsItem; clsItem.cls\r\nName=\"Shop\"\r\n",
      {{"notes.txt", "words"}, Bas("modMain", {"Public a", "Public b"}), Cls("clsItem", {"Public a", "Public b"})});
  OpenWindow();
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "clsItem", "modMain"));
  EXPECT_EQ(form.lbxComp->ItemData(2), 2);
}

TEST_F(ComponentList, EachKindButtonListsItsKindAndOpensTheFirst) {
  const struct {
    const char* button;
    std::vector<std::string> listed;
  } kCases[] = {
      {"axAllComp", {" Project Globals", "clsItem", "frmDesk", "frmMain", "modMain", "pagColours", "ucGrid"}},
      {"axForms", {" Project Globals", "frmDesk", "frmMain"}},
      {"axControls", {" Project Globals", "ucGrid"}},
      {"axModules", {" Project Globals", "modMain"}},
      {"axClasses", {" Project Globals", "clsItem"}},
  };
  OpenWindow(kShop);
  for (const auto& c : kCases) {
    form.Find(c.button)->Click();
    EXPECT_EQ(Components(), c.listed) << c.button;
    EXPECT_EQ(form.lbxComp->ListIndex(), 1) << c.button;
    EXPECT_EQ(form.lbxComp->Text(), c.listed[1]) << c.button;
  }
}

TEST_F(ComponentList, AKindButtonThatFindsNothingLeavesTheGlobalsAlone) {
  OpenWindow({Bas("modMain", {"Public a", "Public b"}), Frm("frmA", {"Dim a", ""})});
  form.axClasses.Click();
  EXPECT_THAT(Components(), ElementsAre(" Project Globals"));
  EXPECT_THAT(Procedures(), ElementsAre("Declarations"));
  EXPECT_THAT(CodeRows(), IsEmpty());
}

TEST_F(ComponentList, TheKindStaysForTheNextListing) {
  OpenWindow(kShop);
  form.axForms.Click();
  form.lbxComp->UserSelect(0);
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "frmDesk", "frmMain"));
}

TEST_F(ComponentList, ChoosingAComponentShowsItsDeclarationsAndProcedures) {
  OpenWindow(kShop);
  ChooseComponent("modMain");
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Private Sub Tidy()", "Public Sub Main()"));
  EXPECT_THAT(CodeRows(), ElementsAre("Public Total As Long"));
  EXPECT_TRUE(form.lbxProc->HasFocus());
  EXPECT_EQ(form.lbxProc->ItemData(0), 0);
}

TEST_F(ComponentList, ChoosingAComponentStartsWithUnfilteredProcedures) {
  OpenWindow(kShop);
  ClickOn(form.optProcFunc);
  ClickOn(form.optProcPubl);
  ChooseComponent("frmMain");
  EXPECT_TRUE(form.optProcAll.Value());
  EXPECT_TRUE(form.optAllProc.Value());
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Private Sub Form_Load()", "Sub Fill()"));
}

TEST_F(ComponentList, TheSearchBoxOffersTheNameChosenLast) {
  OpenWindow(kShop);
  ChooseComponent("clsItem");
  EXPECT_EQ(form.cmbSearch.Text(), "clsItem");
  ChooseComponent("Project Globals");
  EXPECT_EQ(form.cmbSearch.Text(), "clsItem");
}

TEST_F(ComponentList, TheFirstRowListsTheProjectAgain) {
  OpenWindow(kShop);
  ChooseComponent("clsItem");
  ChooseComponent("Project Globals");
  EXPECT_EQ(Components().size(), 7u);
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Private Sub Tidy()", "Public Sub Main()"));
}

TEST_F(ComponentList, AComponentThatHasGoneLeavesEmptyLists) {
  OpenWindow(kShop);
  auto components = environment->ActiveVBProject()->VBComponents();
  for (long i = components->Count(); i > 3; --i) components->Remove(components->Item(i));
  ChooseComponent("ucGrid");
  EXPECT_THAT(Procedures(), ElementsAre("Declarations"));
  EXPECT_THAT(CodeRows(), IsEmpty());
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_THAT(toolkit.Faults(), IsEmpty());
}

TEST_F(ComponentList, ATypedNameChoosesItsRow) {
  OpenWindow(kShop);
  form.lbxComp->UserEdit("CLSITEM");
  Press(*form.lbxComp, forms::vbKeyReturn);
  EXPECT_EQ(form.lbxComp->Text(), "clsItem");
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Property Get Name()"));
}

TEST_F(ComponentList, ATypedNameThatIsInNoRowGivesWayToTheChosenOne) {
  OpenWindow(kShop);
  for (const char* chosen : {"clsItem", " Project Globals", "modMain"}) {
    ChooseComponent(chosen);
    const long row = form.lbxComp->ListIndex();
    const auto procedures = Procedures();
    form.lbxComp->SetFocus();
    form.lbxComp->UserEdit("nonsense");
    ASSERT_EQ(form.lbxComp->ListIndex(), -1);
    Press(*form.lbxComp, forms::vbKeyReturn);
    EXPECT_EQ(form.lbxComp->Text(), chosen);
    EXPECT_EQ(form.lbxComp->ListIndex(), row);
    EXPECT_EQ(Procedures(), procedures);
    EXPECT_TRUE(form.lbxComp->HasFocus());
  }
  form.optSecond.UserClick();
  form.lbxComp->UserEdit("nonsense");
  Press(*form.lbxComp, forms::vbKeyReturn);
  EXPECT_EQ(form.lbxComp->Text(), "nonsense") << "nothing is listed that it could give way to";
}

TEST_F(ComponentList, AChoiceDuringTheFirstListingDoesNotListTwice) {
  Open(kShop);
  form.VBInstance = environment;
  long clicks = 0;
  services.loop.on_do_events = [&] {
    ++clicks;
    if (clicks == 3) form.lbxComp1.UserSelect(0);
  };
  form.Show();
  services.loop.on_do_events = nullptr;
  EXPECT_EQ(Components().size(), 7u);
}

TEST_F(ComponentList, AListingWithoutProceduresShowsTheHourglassToo) {
  OpenWindow({Frm("frmA", {"Dim a", ""}), Frm("frmB", {"Dim b", ""})});
  EXPECT_THAT(services.screen.pointers, Contains(host::vbHourglass));
  EXPECT_EQ(services.screen.MousePointer(), host::vbDefault);
}

TEST_F(ComponentList, TheHourglassIsTakenBack) {
  OpenWindow(kShop);
  EXPECT_THAT(services.screen.pointers, Contains(host::vbHourglass));
  EXPECT_EQ(services.screen.MousePointer(), host::vbDefault);
}

TEST_F(ComponentList, AListingThatFailsLeavesTheWindowUsable) {
  form.VBInstance = environment;  // no project is open
  form.Show();
  EXPECT_EQ(services.screen.MousePointer(), host::vbDefault);
  EXPECT_TRUE(form.lbxProc->Visible());
  Open(kShop);
  form.axAllComp.Click();
  EXPECT_EQ(Components().size(), 7u);
}

TEST_F(ComponentList, SeveralProjectsAreOpenAndTheActiveOneIsListed) {
  Open(kShop);
  environment->OpenFromModules("Tools",
                               {Bas("modTools", {"Public a", "Public b"}), Cls("clsTool", {"Dim a", "Dim b"})});
  ASSERT_GT(environment->VBProjects()->Count(), 1);
  environment->ActivateProject(environment->Projects().front());
  OpenWindow();
  EXPECT_EQ(Components().size(), 7u);
  EXPECT_THAT(Components(), Not(Contains("modTools")));
}

TEST_F(ComponentList, AModuleOfThisMomentIsReadNotOneOfBefore) {
  OpenWindow(kShop);
  ChooseComponent("clsItem");
  Module("clsItem").InsertLines(1, "Private mPrice");
  ChooseComponent("clsItem");
  EXPECT_THAT(CodeRows(), Contains("Private mPrice"));
}

}  // namespace
}  // namespace corvane::tests
