#include "codelist/list_menu.h"

#include <set>

#include "codelist/reading_commands.h"
#include "list_fixture.h"
#include "runtime/strings.h"

namespace corvane::codelist {
namespace {

using namespace forms;
using testing::ElementsAre;
using testing::IsEmpty;
using enum ListEntry;

class ListMenuTest : public ListTest {
 protected:
  ListMenuTest() {
    list.Search = [this](const std::string& word) { events.push_back("Search " + word); };
    list.DBSearch = [this](const std::string& word) { events.push_back("DBSearch " + word); };
    list.GoProc = [this](const std::string& name) { events.push_back("GoProc [" + name + "]"); };
    list.QuickReminder = [this](long& action) { events.push_back("QuickReminder " + std::to_string(action)); };
  }
  void LoadCode(const std::vector<std::string>& lines, const std::string& mode = "VB") {
    list.sGrid(mode);
    list.ListRole = kSourcePane;  // texts are loaded past the end of a procedure
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    list.SetText(text);
    list.ListRole = kCodeView;
    events.clear();
  }
  // The right button on character [column] (from 1) of the line on [row]; chooses [caption], or nothing.
  void Menu(long row, long column, const std::string& caption = "") {
    toolkit.OnPopup(caption);
    const Twips x = list.GutterWidth() + static_cast<Twips>(column) * 98 - 40;
    Press(row, x, vbRightButton);
    ReleaseAt(row, x, vbRightButton);
    // The click itself is told behind the menu.
    std::erase_if(events, [](const std::string& event) { return event == "UcClick" || event == "Click"; });
  }
  bool Offers(ListEntry entry) { return list.Reading().menu[entry].Enabled(); }
  std::string Caption(ListEntry entry) { return list.Reading().menu[entry].Caption(); }
  std::vector<std::string> QuickList() {
    std::vector<std::string> items;
    for (long row = 0; row < list.lbx.ListCount(); ++row)
      items.push_back(std::to_string(list.lbx.ItemData(row)) + " " + list.lbx.List(row));
    return items;
  }
};

TEST_F(ListMenuTest, EveryEntryHasARowOfItsOwn) {
  std::set<std::string> names, captions;
  size_t place = 0;
  for (const ListMenuRow& row : ListMenuRows()) {
    EXPECT_EQ(static_cast<size_t>(row.entry), place++) << row.name;
    EXPECT_TRUE(names.insert(row.name).second) << row.name;
    EXPECT_TRUE(captions.insert(row.caption).second) << row.caption;
    EXPECT_TRUE(row.group == kNone || row.group < row.entry) << row.name;
    EXPECT_EQ(list.Reading().menu[row.entry].Name(), row.name);
  }
  EXPECT_EQ(place, static_cast<size_t>(kCount));
}

TEST_F(ListMenuTest, IsNoMenuOfTheWindow) {
  EXPECT_EQ(window.Find("mnuSearch"), nullptr);
  forms::Menu own(window, "mnuSearch", "Search Procedure");
  EXPECT_EQ(window.Find("mnuSearch"), &own);
}

TEST_F(ListMenuTest, OnCodeItOffersItsGroupsInTheirOrder) {
  LoadCode({"x = count"});
  Menu(1, 6);
  EXPECT_THAT(toolkit.Popups().back(),
              ElementsAre("mnuPopUp", "Search word \"count\"", "Search in Selected Module", "Search in whole Project",
                          "Search here \"count\"", "DataBases and others...", "Edit Codeline", "Collapse",
                          "Go Qickly...", "Var Info", "Quickly...", "Save into History"));
}

TEST_F(ListMenuTest, WithoutATextThereIsNone) {
  list.Clear();
  Menu(1, 1);
  EXPECT_THAT(toolkit.Popups(), IsEmpty());
}

TEST_F(ListMenuTest, AMemberIsShownWithoutItsObject) {
  LoadCode({"x.Caption = 1"});
  Menu(1, 4);
  EXPECT_EQ(Caption(mnuQFind), "Search here \"Caption\"");
  EXPECT_EQ(Caption(mnuSearch), "Search word \"Caption\"");
  EXPECT_EQ(Caption(mnuDeclare), "Goto \"Caption\" Declaration");
  EXPECT_EQ(Caption(mnuGoProc), "Goto Proc \"x.Caption\"");
}

TEST_F(ListMenuTest, AMemberOfWithTakesItsObject) {
  LoadCode({"Sub A()", "With Text1", " .Caption = 1", "End With"});
  Menu(3, 5);
  EXPECT_EQ(Caption(mnuGoProc), "Goto Proc \"Text1.Caption\"");
}

TEST_F(ListMenuTest, MeIsLeftOut) {
  LoadCode({"Me.Caption = 1"});
  Menu(1, 5);
  EXPECT_EQ(Caption(mnuGoProc), "Goto Proc \"Caption\"");
}

TEST_F(ListMenuTest, InSqlTheSignOfAVariableStays) {
  LoadCode({"set @count = 1"}, "SQL");
  Menu(1, 8);
  EXPECT_EQ(Caption(mnuQFind), "Search here \"@count\"");
}

TEST_F(ListMenuTest, BehindTheEndOfALineThereIsNoWord) {
  LoadCode({"count = 1"});
  Menu(1, 3);
  for (const ListEntry entry : {mnuQFind, mnuSearch, mnuGoProc, mnuDeclare}) EXPECT_TRUE(Offers(entry));
  Menu(1, 30);
  for (const ListEntry entry : {mnuQFind, mnuSearch, mnuGoProc, mnuDeclare}) EXPECT_FALSE(Offers(entry));
  EXPECT_EQ(Caption(mnuSearch), "Search word \"count\"") << "captions stay";
}

TEST_F(ListMenuTest, AWordOfOneCharacterIsNone) {
  LoadCode({"x = 1"});
  Menu(1, 1);
  EXPECT_FALSE(Offers(mnuSearch));
}

TEST_F(ListMenuTest, TheThreeWordSearchesTellWhereToLook) {
  LoadCode({"x.Caption = 1"});
  Menu(1, 4, "Search word \"Caption\"");
  Menu(1, 4, "Search in Selected Module");
  Menu(1, 4, "Search in whole Project");
  EXPECT_THAT(events, ElementsAre("Search Caption", "Search \03Caption", "Search \02Caption"));
  EXPECT_EQ(services.clipboard.text, "Caption");
}

TEST_F(ListMenuTest, TheDataBaseSearchComesBehindTheMenu) {
  LoadCode({"x.Caption = 1"});
  Menu(1, 4, "DataBases and others...");
  EXPECT_THAT(events, ElementsAre("DBSearch Caption"));
  Menu(1, 4);
  EXPECT_THAT(events, ElementsAre("DBSearch Caption")) << "asked for once";
}

TEST_F(ListMenuTest, TheDataBaseSearchIsDisabledWhereNobodyAnswersIt) {
  list.DBSearch = {};
  LoadCode({"count"});
  Menu(1, 2);
  EXPECT_FALSE(Offers(mnuDBFind));
}

TEST_F(ListMenuTest, WhatTheContainerDoesNotHearIsDisabled) {
  LoadCode({"count = 1", "x = 2"});
  Menu(1, 2);
  for (const ListEntry entry : {mnuSearch, mnuSearchAll, mnuGoProc, mnuEdit, mnuComnt, mnuFormat, mnuHistory})
    EXPECT_TRUE(Offers(entry)) << list.Reading().menu[entry].Name();
  list.Search = {};
  list.GoProc = {};
  list.UpdateString = {};
  list.CodeLostFocus = {};
  Menu(1, 2);
  for (const ListEntry entry : {mnuSearch, mnuSearchAll, mnuGoProc, mnuEdit, mnuComnt, mnuFormat, mnuHistory})
    EXPECT_FALSE(Offers(entry)) << list.Reading().menu[entry].Name();
}

TEST_F(ListMenuTest, WhatIsHeardFromNowOnIsOfferedAgain) {
  const auto search = list.Search;
  list.Search = {};
  LoadCode({"count = 1", "x = 2"});
  Menu(1, 2);
  EXPECT_FALSE(Offers(mnuSearchAll));
  list.Search = search;
  Menu(1, 2);
  EXPECT_TRUE(Offers(mnuSearchAll));
}

TEST_F(ListMenuTest, FoldingIsOfferedWhereABlockIs) {
  LoadCode({"Sub A()", "If a Then", "count = 1", "End If", "End Sub", ""});
  Menu(3, 3);
  bool offered = true;
  list.Reading().menu.mnuPopUp.Click = [&] { offered = Offers(mnuCollapce); };
  Menu(5, 2);
  EXPECT_FALSE(offered) << "outermost code";
  EXPECT_TRUE(Offers(mnuCollapce)) << "behind the menu again";
  Menu(3, 3);
  EXPECT_TRUE(offered);
  Menu(1, 3);
  EXPECT_TRUE(offered) << "on line 1 it stays, and does nothing";
}

TEST_F(ListMenuTest, FoldingHereKeepsTheArrowKeysOutOfTheStretch) {
  LoadCode({"Sub A()", "If a Then", "count = 1", "total = 2", "End If", "x = 1", "End Sub"});
  Menu(2, 4, "Collapse here");
  EXPECT_FALSE(list.IsLineVisible(3));
  EXPECT_FALSE(list.IsLineVisible(4));
  EXPECT_EQ(list.ListIndex(), 2);
  Key(vbKeyDown);
  EXPECT_EQ(list.ListIndex(), 5);
  Menu(2, 4);
  EXPECT_TRUE(Offers(mnuExpand));
  Menu(1, 4);
  EXPECT_FALSE(Offers(mnuExpand));
}

TEST_F(ListMenuTest, ATooSmallBlockIsTold) {
  LoadCode({"Sub A()", "x = 1", "total = 2", "End Sub"});
  Menu(2, 1, "Collapse on color level");
  EXPECT_THAT(services.prompts.Texts(), ElementsAre("This BlockLevel is too small"));
  EXPECT_TRUE(list.IsLineVisible(3));
}

TEST_F(ListMenuTest, AllWaysOfFoldingAreReached) {
  const std::vector<std::string> code = {"Sub A()", "If a Then", "count = 1", "End If", "total = 2", "End Sub"};
  LoadCode(code);
  Menu(2, 5, "Collapse on color level");
  EXPECT_FALSE(list.IsLineVisible(3));
  Menu(2, 5, "Expand");
  EXPECT_TRUE(list.IsLineVisible(3));
  Menu(1, 5, "Logical Collapse");
  EXPECT_FALSE(list.IsLineVisible(3));
  Menu(1, 5, "Full Collapse RESET");
  EXPECT_TRUE(list.IsLineVisible(3));
  ClickOn(5, 100);
  Menu(1, 5, "Collapse selected lines");
  EXPECT_FALSE(list.IsLineVisible(5));
}

TEST_F(ListMenuTest, GoDownAndUpWalkTheLevelAndPreviousComesBack) {
  LoadCode({"Sub A()", "Do", "count = 1", "Loop", "total = 2", "End Sub"});
  Menu(3, 2, "Go Down");
  EXPECT_EQ(list.ListIndex(), 4);
  list.SetStrPos(3);
  Menu(3, 2, "Go Up");
  EXPECT_EQ(list.ListIndex(), 2);
  Menu(2, 2, "Previous");
  EXPECT_EQ(list.ListIndex(), 3);
}

TEST_F(ListMenuTest, GoToLabelFindsTheLabel) {
  LoadCode({"Sub A()", "GoTo again", "x = 1", "Again:", "End Sub"});
  Menu(2, 7);
  EXPECT_TRUE(Offers(mnuGoto));
  Menu(2, 7, "GoTo Label");
  EXPECT_EQ(list.ListIndex(), 4);
  Menu(3, 1);
  EXPECT_FALSE(Offers(mnuGoto));
}

TEST_F(ListMenuTest, ADeclarationAboveBecomesTheCurrentLine) {
  LoadCode({"Sub A()", "Dim count As Long", "x = 1", "count = 2", "End Sub"});
  Menu(4, 2, "Goto \"count\" Declaration");
  EXPECT_EQ(list.ListIndex(), 2);
  EXPECT_THAT(events, testing::Not(testing::Contains("GoProc [ COUNT]")));
}

TEST_F(ListMenuTest, AnUndeclaredWordIsAskedOfTheContainerWithABlankInFront) {
  LoadCode({"Sub A()", "x = total(1)", "End Sub"});
  events.clear();
  Menu(2, 6, "Goto \"total\" Declaration");
  EXPECT_THAT(events, ElementsAre("CodeLostFocus -2", "GoProc [ TOTAL()]"));
}

TEST_F(ListMenuTest, AProcedureIsAskedWithTheClassOfItsObject) {
  LoadCode({"Sub A()", "Dim f As New frmMain", "f.Fill", "Me.Fill", "Fill", "End Sub"});
  Menu(3, 4, "Goto Proc \"f.Fill\"");
  Menu(4, 5, "Goto Proc \"Fill\"");
  EXPECT_THAT(events, ElementsAre("CodeLostFocus -3", "GoProc [FRMMAIN.Fill]", "CodeLostFocus -4", "GoProc [Fill]"));
}

TEST_F(ListMenuTest, SavingIntoTheHistoryTellsTheLine) {
  LoadCode({"aa = 1", "bb = 2"});
  Menu(2, 1, "Save into History");
  EXPECT_THAT(events, ElementsAre("CodeLostFocus -2"));
}

TEST_F(ListMenuTest, SearchHereListsTheLinesThatHoldTheWord) {
  LoadCode({"count = 1", "x = 2", "y = Count", "x.count = 3"});
  Menu(1, 2, "Search here \"count\"");
  EXPECT_THAT(QuickList(), ElementsAre("1 count = 1", "3 y = Count", "4 x.count = 3"));
  EXPECT_TRUE(list.lbx.HasFocus());
}

TEST_F(ListMenuTest, VarInfoListsTheDeclarations) {
  LoadCode({"Private a", "x = 2", "  Dim b", "Static c", "Public d", "ReDim e(1)"});
  Menu(2, 1, "Var Info");
  EXPECT_THAT(QuickList(), ElementsAre("1 Private a", "3   Dim b", "4 Static c", "5 Public d", "6 ReDim e(1)"));
}

TEST_F(ListMenuTest, QuickViewShowsTheListAgain) {
  LoadCode({"Dim a", "x = 2"});
  Menu(2, 1);
  EXPECT_FALSE(Offers(mnuQuick));
  Menu(2, 1, "Var Info");
  window.other.SetFocus();
  ASSERT_FALSE(list.lbx.Visible());
  Menu(2, 1, "Quick View");
  EXPECT_TRUE(list.lbx.Visible());
  EXPECT_THAT(QuickList(), ElementsAre("1 Dim a"));
}

TEST_F(ListMenuTest, SelectionCommandsAreReached) {
  LoadCode({"aa = 1", "bb = 2"});
  Menu(1, 1, "Select All");
  EXPECT_THAT(SelectedLines(), ElementsAre(1, 2));
  Menu(1, 1, "Clear Selection");
  EXPECT_THAT(SelectedLines(), IsEmpty());
  ClickOn(1, 100);
  Menu(1, 1, "Copy Selection");
  EXPECT_EQ(services.clipboard.text, "aa = 1\r\n");
  ClickOn(2, 100);
  Menu(1, 1, "Add Selection");
  EXPECT_EQ(services.clipboard.text, "aa = 1\r\n\r\n\r\nbb = 2\r\n");
  Menu(1, 1, "Add Selection");
  EXPECT_EQ(services.clipboard.text, "aa = 1\r\n\r\n\r\nbb = 2\r\n") << "with no line selected it stays";
}

TEST_F(ListMenuTest, TheColourEntryTellsWhatItWillDo) {
  LoadCode({"aa = 1", "bb = 2"});
  Menu(1, 1, "Set Color analyze Off");
  Menu(1, 1, "Set Color analyze On");
  EXPECT_THAT(events, ElementsAre("ColorOnOff 1"));
}

TEST_F(ListMenuTest, FormattingRaisesEveryLineButComments) {
  list.UpdateString = [this](long line, const std::string& text) {
    events.push_back(std::to_string(line) + " " + text);
    list.ReplaceItem(line, text);
  };
  LoadCode({"Sub A()", "      If a Then", "x = 1", "   'as it is", "End If", "End Sub"});
  Menu(1, 1, "Format Code");
  EXPECT_THAT(events, ElementsAre("1 Sub A()", "2 If a Then", "3   x = 1", "5 End If", "6 End Sub"));
  EXPECT_THAT(Levels(), ElementsAre(33, 33, 34, 34, 34, 33));
}

TEST_F(ListMenuTest, ALineThatCannotBeWrittenDoesNotEndFormatting) {
  list.UpdateString = [this](long line, const std::string&) {
    if (line == 2) throw runtime::Error(9);
    events.push_back(std::to_string(line));
  };
  LoadCode({"aa = 1", "bb = 2", "cc = 3"});
  Menu(1, 1, "Format Code");
  EXPECT_THAT(events, ElementsAre("1", "3"));
  EXPECT_EQ(services.screen.MousePointer(), host::vbDefault);
}

TEST_F(ListMenuTest, CommentingRaisesTheSelectedLines) {
  LoadCode({"aa = 1", "'bb = 2", "'-----"});
  Menu(1, 1, "Comment selected lines");
  EXPECT_THAT(events, IsEmpty()) << "nothing selected";
  for (long row : {1, 2, 3}) ClickOn(row, 100);
  events.clear();
  Menu(1, 1, "Comment selected lines");
  EXPECT_THAT(events, ElementsAre("UpdateString 1 'aa = 1", "UpdateString 2 ''bb = 2", "UpdateString 3 ''-----"));
  events.clear();
  Menu(1, 1, "Uncomment selected lines");
  EXPECT_THAT(events, ElementsAre("UpdateString 2 bb = 2"));
}

TEST_F(ListMenuTest, APassShowsThatItWorks) {
  int during = 0;
  list.UpdateString = [&](long, const std::string&) { during = services.screen.MousePointer(); };
  LoadCode({"aa = 1", "bb = 2"});
  Menu(1, 1, "Format Code");
  EXPECT_EQ(during, host::vbHourglass);
  EXPECT_EQ(services.screen.MousePointer(), host::vbDefault);
}

TEST_F(ListMenuTest, OnItemsOfTheScriptTreeItIsAnotherMenu) {
  list.sGrid("TREE");
  list.SetText("Group\r\nx Item {a}\r\n");
  list.ListRole = kScriptTree;
  Menu(1, 1);
  EXPECT_THAT(toolkit.Popups().back(),
              ElementsAre("mnuTitle", "Edit Weaver menu", "Item...", "Develop New Script", "(Edit Script)"));
  Menu(2, 1);
  EXPECT_THAT(toolkit.Popups().back(),
              ElementsAre("mnuTitle", "Edit Weaver menu", "Item...", "Develop New Script", "Edit Script"));
}

TEST_F(ListMenuTest, EachItemOfTheScriptTreeTellsItsNumber) {
  list.sGrid("TREE");
  list.SetText("x Item {a}\r\n");
  list.ListRole = kScriptTree;
  events.clear();
  for (const char* caption : {"Edit Weaver menu", "Add New Item...", "Edit selected Item...", "Rename Item",
                              "Delete selected Item", "Develop New Script", "Edit Script"})
    Menu(1, 1, caption);
  EXPECT_THAT(events, ElementsAre("QuickReminder 0", "QuickReminder 3", "QuickReminder 5", "QuickReminder 6",
                                  "QuickReminder 4", "QuickReminder 1", "QuickReminder 2"));
}

TEST_F(ListMenuTest, InATreeCodeEntriesNeedAQuickList) {
  list.sGrid("TREE");
  list.SetText("Group\r\nCount\r\n");
  std::vector<bool> offered;
  list.Reading().menu.mnuPopUp.Click = [&] { offered.push_back(Offers(mnuVar)); };
  Menu(2, 1);
  list.AddQuickItem(2);
  Menu(2, 1);
  EXPECT_THAT(offered, ElementsAre(false, true));
  EXPECT_TRUE(Offers(mnuFormat));
}

TEST_F(ListMenuTest, TheMenuKeyOpensItAtTheCurrentLine) {
  LoadCode({"aa = 1", "count = 2"});
  list.SetStrPos(2);
  for (const auto& [key, shift] : {std::pair(93, 0), std::pair(static_cast<int>(vbKeyF10), 1)}) {
    toolkit.OnPopup("");
    Key(key, shift);
    EXPECT_EQ(Caption(mnuSearch), "Search word \"count\"");
  }
  EXPECT_EQ(toolkit.Popups().size(), 2u);
}

class TypedKeys : public ListMenuTest {};

TEST_F(TypedKeys, ABlankInCodeListsTheDeclarations) {
  LoadCode({"Private a", "x = 2", "Dim b"});
  list.pic.UserKeyPress(' ');
  EXPECT_THAT(QuickList(), ElementsAre("1 Private a", "3 Dim b"));
}

TEST_F(TypedKeys, ABlankShowsAFilledListAgain) {
  LoadCode({"Private a", "x = 2"});
  list.AddQuickItem(2);
  list.pic.UserKeyPress(' ');
  EXPECT_TRUE(list.lbx.Visible());
  EXPECT_THAT(QuickList(), ElementsAre("2 x = 2"));
}

TEST_F(TypedKeys, ABlankInSqlListsTheCaptions) {
  LoadCode({"::Tables", "select", "  x ::no", "::Views"}, "SQL");
  list.pic.UserKeyPress(' ');
  EXPECT_THAT(QuickList(), ElementsAre("1 ::Tables", "4 ::Views"));
}

TEST_F(TypedKeys, AnotherKeyOpensTheSearchBoxHoldingIt) {
  LoadCode({"count = 1", "x = 2", "total = count"});
  services.prompts.inputs = {"count"};
  list.pic.UserKeyPress('c');
  ASSERT_EQ(services.prompts.input_boxes.size(), 1u);
  EXPECT_EQ(services.prompts.input_boxes[0].prompt, "Type SubString for Quick Search");
  EXPECT_EQ(services.prompts.input_boxes[0].default_text, "c");
  EXPECT_THAT(QuickList(), ElementsAre("1 count = 1", "3 total = count"));
}

TEST_F(TypedKeys, AnEmptyAnswerEndsIt) {
  LoadCode({"count = 1", "x = 2"});
  list.pic.UserKeyPress('c');
  EXPECT_FALSE(list.lbx.Visible());
}

TEST_F(TypedKeys, WithNothingFoundTheEmptyListIsShown) {
  LoadCode({"count = 1", "x = 2"});
  list.AddQuickItem(1);
  services.prompts.inputs = {"zz"};
  list.pic.UserKeyPress('z');
  EXPECT_THAT(QuickList(), IsEmpty());
  EXPECT_TRUE(list.lbx.Visible());
}

TEST_F(TypedKeys, HiddenLinesAreNotListed) {
  LoadCode({"Sub A()", "If a Then", "count = 1", "End If", "count = 2", "End Sub"});
  Menu(2, 4, "Collapse here");
  services.prompts.inputs = {"count"};
  list.pic.UserKeyPress('c');
  EXPECT_THAT(QuickList(), ElementsAre("5 count = 2"));
}

TEST_F(TypedKeys, APictureMarkIsCutFromTheEntry) {
  list.sGrid("TEXT");
  list.SetText("\x04*\x04 count\r\nx\r\n");
  services.prompts.inputs = {"count"};
  list.pic.UserKeyPress('c');
  EXPECT_THAT(QuickList(), ElementsAre("1  count"));
}

TEST_F(TypedKeys, ControlCodesUpToTabAreIgnored) {
  LoadCode({"count = 1", "x = 2"});
  for (int key = 1; key <= 9; ++key) list.pic.UserKeyPress(key);
  EXPECT_THAT(services.prompts.input_boxes, IsEmpty());
}

TEST_F(TypedKeys, AnEmptyListIgnoresThem) {
  list.Clear();
  events.clear();
  list.pic.UserKeyPress('a');
  list.pic.UserKeyPress(vbKeyEscape);
  EXPECT_THAT(services.prompts.input_boxes, IsEmpty());
  EXPECT_THAT(events, IsEmpty());
}

}  // namespace
}  // namespace corvane::codelist
