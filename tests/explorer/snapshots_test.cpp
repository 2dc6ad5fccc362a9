// The lists that were shown before, with the keys beside the procedures.
#include "tests/explorer/explorer_fixture.h"

namespace corvane::tests {
namespace {

class Snapshots : public ExplorerTest {
 protected:
  Snapshots() {
    Sources sources;
    for (int i = 1; i <= 8; ++i) {
      const std::string n = std::to_string(i);
      sources.push_back(Cls("clsPart" + n, {"Private m" + n, "", "Public Sub First" + n + "()", "End Sub", "",
                                            "Public Sub Second" + n + "()", "End Sub"}));
    }
    sources.push_back(Bas("modMain", {"Public Total As Long", "", "Public Sub Main()", "End Sub"}));
    OpenWindow(sources);
  }
  std::string Part(int i) { return "clsPart" + std::to_string(i); }
  void OpenParts(int from, int to) {
    for (int i = from; i <= to; ++i) ChooseComponent(Part(i));
  }
  void Refresh() { form.tlbr.UserButtonClick(form.tlbr.PositionOf("Refresh")); }
  std::string Listed() const { return form.lbxComp->Text(); }
};

TEST_F(Snapshots, TheKeysAreDisabledAtFirst) {
  EXPECT_FALSE(form.cmdPrev.Enabled());
  EXPECT_FALSE(form.cmdNext.Enabled());
  ChooseComponent(Part(1));
  EXPECT_FALSE(form.cmdPrev.Enabled()) << "the globals are not copied";
}

TEST_F(Snapshots, LeavingAComponentCopiesItsList) {
  ChooseComponent(Part(1));
  ChooseProcedure("Second1");
  const long row = form.lbxProc->ListIndex();
  const std::vector<std::string> rows = Rows(*form.lbxProc);
  ChooseComponent(Part(2));
  EXPECT_TRUE(form.cmdPrev.Enabled());
  EXPECT_FALSE(form.cmdNext.Enabled());
  std::vector<std::string> saved = Rows(form.lstSave);
  ASSERT_EQ(saved.size(), rows.size() + 1);
  EXPECT_EQ(saved[0], "clsPart1+()+ +|" + std::to_string(row));
  EXPECT_EQ(form.lstSave.ItemData(0), 1) << "of the component row";
  saved.erase(saved.begin());
  EXPECT_EQ(saved, rows);
}

TEST_F(Snapshots, PreviousShowsTheListBeforeWithItsRow) {
  ChooseComponent(Part(1));
  ChooseProcedure("Second1");
  ChooseComponent(Part(2));
  form.cmdPrev.Click();
  EXPECT_EQ(Listed(), Part(1));
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Public Sub First1()", "Public Sub Second1()"));
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub Second1()");
  EXPECT_THAT(CodeRows(), Contains("Public Sub Second1()"));
  EXPECT_FALSE(form.cmdPrev.Enabled());
  EXPECT_TRUE(form.cmdNext.Enabled());
}

TEST_F(Snapshots, NextReturnsToTheNewestThatWasShown) {
  OpenParts(1, 3);
  ChooseProcedure("First3");
  form.cmdPrev.Click();
  EXPECT_EQ(Listed(), Part(2));
  form.cmdPrev.Click();
  EXPECT_EQ(Listed(), Part(1));
  EXPECT_FALSE(form.cmdPrev.Enabled());
  form.cmdNext.Click();
  EXPECT_EQ(Listed(), Part(2));
  form.cmdNext.Click();
  EXPECT_EQ(Listed(), Part(3));
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub First3()");
  EXPECT_TRUE(form.cmdNext.Enabled());
}

TEST_F(Snapshots, NextPastTheNewestListsTheProject) {
  OpenParts(1, 2);
  form.cmdPrev.Click();
  form.cmdNext.Click();
  EXPECT_EQ(Listed(), Part(2));
  form.cmdNext.Click();
  EXPECT_EQ(Listed(), " Project Globals");
  EXPECT_FALSE(form.cmdNext.Enabled());
  EXPECT_TRUE(form.cmdPrev.Enabled());
  form.cmdPrev.Click();
  EXPECT_EQ(Listed(), Part(2));
}

TEST_F(Snapshots, FromTheGlobalsThereIsNoCopyButTheRowIsSelectedAgain) {
  ChooseComponent(Part(1));
  Refresh();
  ChooseProcedure("Main()");
  const long copies = form.snapshots.Count(), row = form.lbxProc->ListIndex();
  form.cmdPrev.Click();
  EXPECT_EQ(form.snapshots.Count(), copies);
  EXPECT_EQ(Listed(), Part(1));
  form.cmdNext.Click();
  EXPECT_EQ(Listed(), " Project Globals");
  EXPECT_EQ(form.lbxProc->ListIndex(), row);
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub Main()");
}

TEST_F(Snapshots, OfSixListsTheOldestGoes) {
  OpenParts(1, 7);
  EXPECT_EQ(form.snapshots.Count(), 5);
  EXPECT_EQ(form.snapshots.Header(1).component, Part(2));
  for (int i = 6; i >= 3; --i) {
    form.cmdPrev.Click();
    EXPECT_EQ(Listed(), Part(i));
  }
  EXPECT_FALSE(form.cmdPrev.Enabled()) << "the view of the seventh took a place";
}

TEST_F(Snapshots, TheSameListIsNotCopiedTwice) {
  ChooseComponent(Part(1));
  Refresh();
  ChooseComponent(Part(1));
  Refresh();
  EXPECT_EQ(form.snapshots.Count(), 1);
  ChooseComponent(Part(1));
  ChooseProcedure("First1");
  Refresh();
  EXPECT_EQ(form.snapshots.Count(), 2) << "with another row";
}

TEST_F(Snapshots, ANewListBehindAStepBackIsTheNewest) {
  OpenParts(1, 3);
  form.cmdPrev.Click();
  form.cmdPrev.Click();
  ChooseComponent(Part(5));
  EXPECT_FALSE(form.cmdNext.Enabled());
  form.cmdPrev.Click();
  EXPECT_EQ(Listed(), Part(1)) << "that was left last";
}

TEST_F(Snapshots, AFilteredListComesBackAsItWas) {
  Caret("clsPart1", 4);
  form.optCurMod.UserClick();
  ClickOn(form.optProcEvent);
  const std::vector<std::string> rows = Rows(*form.lbxProc);
  form.optProj.UserClick();
  form.cmdPrev.Click();
  EXPECT_EQ(Rows(*form.lbxProc), rows);
  EXPECT_EQ(Listed(), Part(1));
  EXPECT_THAT(Components(), Contains(" Project Globals"));
}

TEST_F(Snapshots, TheComponentRowIsListedAgain) {
  ChooseComponent(Part(1));
  form.txtFind.SetText("main");
  Press(form.txtFind, forms::vbKeyReturn);
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "modMain"));
  form.cmdPrev.Click();
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", Part(1)));
  EXPECT_EQ(Listed(), Part(1));
  EXPECT_THAT(CodeRows(), ElementsAre("Private m1"));
}

TEST_F(Snapshots, AListOfResultsComesBack) {
  form.lbxComp->Clear();
  form.lbxProc->Clear();
  form.lbxComp->AddItem(explorer::kResult);
  form.lbxComp->SetText(explorer::kResult);
  AddHit("clsPart2", 2, 6, "Public Sub Second2()");
  form.lbxProc->SetListIndex(0);
  Refresh();
  form.cmdPrev.Click();
  EXPECT_THAT(Components(), ElementsAre(" Result"));
  EXPECT_THAT(Procedures(), ElementsAre("clsPart2:    001   Public Sub Second2()"));
  EXPECT_THAT(CodeRows(), Contains("Public Sub Second2()"));
}

TEST_F(Snapshots, AListOfResultsIsCopiedAnewBehindASearch) {
  ChooseComponent(Part(1));
  form.TakeSnapshotOfView();
  form.TakeSnapshotOfView();
  EXPECT_EQ(form.snapshots.Count(), 1);
  form.hasResults = true;
  form.TakeSnapshotOfView();
  EXPECT_EQ(form.snapshots.Count(), 2);
  form.TakeSnapshotOfView();
  EXPECT_EQ(form.snapshots.Count(), 2) << "once";
}

TEST_F(Snapshots, ResultsInTheCodeViewComeBackWithTheirMarks) {
  ChooseComponent(Part(1));
  form.txtCode.Clear();
  form.lblSub.SetCaption(explorer::kSearchResult);
  form.txtCode.NoAnalyse = true;
  form.txtCode.AddItem("ModuleName = \2clsPart1");
  form.txtCode.AddItem("  Component = /+\\/+\\Text1/-\\/-\\  /+\\Text = basket/-\\");
  form.txtCode.NoAnalyse = false;
  const std::string first(form.txtCode.StoredText(1)), second(form.txtCode.StoredText(2));
  ChooseComponent(Part(2));
  EXPECT_EQ(form.lstSave.List(0), "***clsPart1+()+ +|0");
  form.cmdPrev.Click();
  EXPECT_EQ(form.lblSub.Caption(), "    < Search Result >");
  ASSERT_EQ(form.txtCode.ListCount(), 2);
  EXPECT_EQ(form.txtCode.StoredText(1), first);
  EXPECT_EQ(form.txtCode.StoredText(2), second);
  EXPECT_EQ(form.txtCode.ListIndex(), 1);
  EXPECT_TRUE(form.txtCode.HasFocus() || form.txtCode.pic.HasFocus());
}

TEST_F(Snapshots, WhatWasPendingIsRememberedBeforeTheStep) {
  OpenParts(1, 2);
  ChooseProcedure("Second2");
  form.txtCode.DblClick();
  form.cmdPrev.Click();
  ASSERT_EQ(form.points.Count(), 1);
  EXPECT_EQ(form.points.Caption(0), "clsPart2:    Public Sub Second2()");
}

TEST_F(Snapshots, AComponentThatHasGoneLeavesTheRows) {
  OpenParts(1, 2);
  auto components = environment->ActiveVBProject()->VBComponents();
  for (int i = 8; i >= 1; --i) components->Remove(components->Item(Part(i)));
  form.cmdPrev.Click();
  EXPECT_EQ(Listed(), Part(1));
  EXPECT_THAT(Procedures(), ElementsAre("Declarations", "Public Sub First1()", "Public Sub Second1()"));
  ChooseComponent("Project Globals");
  EXPECT_THAT(Components(), ElementsAre(" Project Globals", "modMain")) << "the lists answer";
}

TEST_F(Snapshots, TheKeysOfTheKeyboard) {
  OpenParts(1, 2);
  form.lbxProc->UserKeyDown(forms::vbKeyPageUp, forms::vbAltMask);
  EXPECT_EQ(Listed(), Part(1));
  form.lbxProc->UserKeyDown(forms::vbKeyPageDown, forms::vbAltMask);
  EXPECT_EQ(Listed(), Part(2));
}

TEST_F(Snapshots, AreForgottenWithTheWindow) {
  OpenParts(1, 3);
  form.Unload();
  OpenWindow();
  EXPECT_FALSE(form.cmdPrev.Enabled());
  EXPECT_EQ(form.snapshots.Count(), 0);
  EXPECT_EQ(form.lstSave.ListCount(), 0);
}

TEST_F(Snapshots, FromTheCurrentCodeTheyLeadIntoTheProject) {
  OpenParts(1, 2);
  Caret("clsPart4", 4);
  form.optCurMod.UserClick();
  ASSERT_TRUE(form.optCurMod.Value());
  form.cmdPrev.Click();
  EXPECT_EQ(Listed(), Part(2));
  EXPECT_TRUE(form.optProj.Value());
  ChooseComponent("Project Globals");
  EXPECT_THAT(Components(), Contains(Part(8)));
}

TEST_F(Snapshots, AListOfTheCurrentCodeOpensItsComponentAgain) {
  Caret("clsPart4", 4);
  form.optCurMod.UserClick();
  form.optProj.UserClick();
  form.cmdPrev.Click();
  EXPECT_EQ(Listed(), Part(4));
  EXPECT_EQ(form.lbxComp->ItemData(form.lbxComp->ListIndex()), 4);
}

TEST_F(Snapshots, NextBehindAListOfTheProjectListsItAgain) {
  OpenParts(1, 2);
  form.cmdPrev.Click();
  form.cmdNext.Click();
  ChooseComponent("Project Globals");
  form.cmdNext.Click();
  EXPECT_EQ(Listed(), " Project Globals");
  form.cmdPrev.Click();
  EXPECT_EQ(Listed(), Part(2));
}

TEST_F(Snapshots, WhatWasPendingIsRememberedBeforeAListOfResults) {
  ChooseComponent(Part(1));
  form.txtCode.Clear();
  form.lblSub.SetCaption(explorer::kSearchResult);
  form.txtCode.AddItem("ModuleName = clsPart1");
  ChooseComponent(Part(2));
  ChooseProcedure("Second2");
  form.txtCode.DblClick();
  form.cmdPrev.Click();
  ASSERT_EQ(form.points.Count(), 1);
  EXPECT_EQ(form.points.Caption(0), "clsPart2:    Public Sub Second2()");
}

TEST_F(Snapshots, AListingDuringTheYieldHasItsWay) {
  OpenParts(1, 2);
  bool done = false;
  services.loop.on_do_events = [&] {
    if (std::exchange(done, true)) return;
    ChooseComponent(Part(3));
    ChooseProcedure("Second3");
    form.txtCode.SetStrPos(2);
  };
  form.cmdPrev.Click();
  services.loop.on_do_events = nullptr;
  EXPECT_EQ(Listed(), Part(3));
  EXPECT_EQ(form.lblSub.Caption(), "Public Sub Second3()");
  EXPECT_EQ(form.txtCode.ListIndex(), 2) << "nothing is loaded again";
}

TEST_F(Snapshots, AreNotTouchedWhileAListIsFilled) {
  OpenParts(1, 2);
  for (codelist::CvButton* key : {&form.cmdPrev, &form.cmdNext}) {
    bool done = false;
    services.loop.on_do_events = [&] {
      if (!std::exchange(done, true)) key->Click();
    };
    ChooseComponent(Part(5));
    services.loop.on_do_events = nullptr;
    EXPECT_TRUE(done);
    EXPECT_EQ(Listed(), Part(5));
    EXPECT_THAT(Procedures(), Contains("Public Sub First5()"));
    ChooseComponent(Part(2));
  }
}

}  // namespace
}  // namespace corvane::tests
