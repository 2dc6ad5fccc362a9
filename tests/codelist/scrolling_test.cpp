#include "list_fixture.h"

namespace corvane::codelist {
namespace {

using forms::vbKeyDown;
using forms::vbKeyEnd;
using forms::vbKeyHome;
using forms::vbKeyPageDown;
using forms::vbKeyPageUp;
using forms::vbKeyUp;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class Scrolling : public ListTest {
 protected:
  struct Place {
    long top, current, row;
    bool operator==(const Place& other) const = default;
    friend void PrintTo(const Place& p, std::ostream* out) { *out << p.top << " " << p.current << " " << p.row; }
  };
  Place Where() { return {list.TopLine(), list.ListIndex(), list.CurrentRow()}; }
  // A tree of four lines whose second and third are hidden.
  void LoadFolded() {
    list.sGrid("TREE");
    list.SetText("a\r\n++b\r\n++c\r\nd\r\ne\r\n");
    events.clear();
  }
};

TEST_F(Scrolling, TheControlTakesTheHeightOfItsRows) {
  list.Move(0, 0, 4000, 2000);
  EXPECT_EQ(list.VisibleRows(), 9);
  EXPECT_EQ(list.Height(), 9 * 234);
  list.Move(0, 0, 4000, 1950);
  EXPECT_EQ(list.VisibleRows(), 8);
  EXPECT_EQ(list.pic.Height(), 8 * 234);
  EXPECT_EQ(list.vs.Height(), 7 * 234);
  EXPECT_EQ(list.hs.Top(), 7 * 234);
}

TEST_F(Scrolling, HalfARowGoesToTheEvenCountOfRows) {
  for (const auto& [height, rows] : {std::pair{1989, 8}, {2223, 10}}) {
    list.Move(0, 0, 4000, height);
    EXPECT_EQ(list.VisibleRows(), rows);
  }
}

TEST_F(Scrolling, ALoadStartsAtTheFirstLine) {
  Load(30);
  EXPECT_EQ(Where(), (Place{1, 1, 1}));
}

TEST_F(Scrolling, SetStrPosShowsTheLineOnRowThree) {
  Load(30);
  EXPECT_EQ(list.SetStrPos(20), 20);
  EXPECT_EQ(Where(), (Place{18, 20, 3}));
  EXPECT_EQ(list.vs.Value(), 17);
  EXPECT_THAT(events, IsEmpty());
  list.SetStrPos(2);
  EXPECT_EQ(Where(), (Place{1, 2, 2}));
  list.SetStrPos(1);
  EXPECT_EQ(Where(), (Place{1, 1, 1}));
}

TEST_F(Scrolling, SetStrPosInALowListShowsTheLineOnItsLastRow) {
  Load(30);
  for (const auto& [rows, place] :
       {std::pair{3, Place{18, 20, 3}}, std::pair{2, Place{19, 20, 2}}, std::pair{1, Place{20, 20, 1}}}) {
    list.SetHeight(rows * 234);
    ASSERT_EQ(list.VisibleRows(), rows);
    EXPECT_EQ(list.SetStrPos(20), 20);
    EXPECT_EQ(Where(), place) << rows;
    EXPECT_THAT(DrawnTexts().back(), testing::HasSubstr("\" 20\"")) << rows;
  }
}

TEST_F(Scrolling, AResizeToOneRowKeepsTheCurrentLine) {
  Load(30);
  list.SetStrPos(9);
  list.SetHeight(234);
  EXPECT_EQ(Where(), (Place{9, 9, 1}));
}

TEST_F(Scrolling, SetStrPosOutsideTheListIsIgnored) {
  Load(5);
  list.SetStrPos(3);
  EXPECT_EQ(list.SetStrPos(6), 6);
  EXPECT_EQ(list.SetStrPos(0), 0);
  EXPECT_EQ(list.ListIndex(), 3);
}

TEST_F(Scrolling, SetStrPosStepsOverHiddenLines) {
  LoadFolded();
  list.SetStrPos(5);
  EXPECT_EQ(Where(), (Place{1, 5, 3}));
}

TEST_F(Scrolling, GoHomeShowsTheFirstLine) {
  Load(30);
  list.SetStrPos(20);
  list.GoHome();
  EXPECT_EQ(Where(), (Place{1, 1, 1}));
  EXPECT_EQ(list.vs.Value(), list.vs.Min());
}

TEST_F(Scrolling, DownMovesTheCurrentLineAndScrollsInFrontOfTheBar) {
  Load(30);
  for (int step = 1; step <= 8; ++step) Key(vbKeyDown);
  EXPECT_EQ(Where(), (Place{1, 9, 9}));
  Key(vbKeyDown);
  EXPECT_EQ(Where(), (Place{2, 10, 9})) << "row ten lies behind the bar";
  EXPECT_EQ(list.vs.Value(), 2);
  EXPECT_EQ(events, std::vector<std::string>(9, "Click"));
}

TEST_F(Scrolling, DownEndsAtTheLastLine) {
  Load(3);
  for (int step = 0; step < 5; ++step) Key(vbKeyDown);
  EXPECT_EQ(Where(), (Place{1, 3, 3}));
  EXPECT_EQ(events.size(), 2u);
}

TEST_F(Scrolling, DownPastTheLastLinesDrawsAnEmptyRow) {
  Load(10);
  for (int step = 1; step < 9; ++step) Key(vbKeyDown);
  Canvas().Forget();
  Key(vbKeyDown);
  EXPECT_EQ(Where(), (Place{2, 10, 9}));
  EXPECT_THAT(Drawn("fill"), testing::Contains("fill 0 2106 3745 234 #ffffff"));
}

TEST_F(Scrolling, UpMovesTheCurrentLineAndScrollsAtTheTop) {
  Load(30);
  list.SetStrPos(20);
  Key(vbKeyUp);
  Key(vbKeyUp);
  EXPECT_EQ(Where(), (Place{18, 18, 1}));
  Key(vbKeyUp);
  EXPECT_EQ(Where(), (Place{17, 17, 1}));
  EXPECT_EQ(list.vs.Value(), 16);
  EXPECT_EQ(events, std::vector<std::string>(3, "Click"));
}

TEST_F(Scrolling, UpEndsAtTheFirstLine) {
  Load(3);
  Key(vbKeyUp);
  EXPECT_EQ(Where(), (Place{1, 1, 1}));
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(Scrolling, StepsGoOverHiddenLines) {
  LoadFolded();
  Key(vbKeyDown);
  EXPECT_EQ(Where(), (Place{1, 4, 2}));
  Key(vbKeyUp);
  EXPECT_EQ(Where(), (Place{1, 1, 1}));
}

TEST_F(Scrolling, DownStaysInFrontOfAHiddenEnd) {
  list.sGrid("TREE");
  list.SetText("a\r\n++b\r\n");
  Key(vbKeyDown);
  EXPECT_EQ(Where(), (Place{1, 1, 1}));
}

TEST_F(Scrolling, PageDownStepsByAllRowsButTwo) {
  Load(30);
  Key(vbKeyPageDown);
  EXPECT_EQ(Where(), (Place{9, 9, 1}));
  EXPECT_EQ(list.vs.Value(), 8);
  EXPECT_THAT(events, ElementsAre("Click"));
  Key(vbKeyPageDown);
  Key(vbKeyPageDown);
  EXPECT_EQ(Where(), (Place{25, 25, 1}));
  Key(vbKeyPageDown);
  EXPECT_EQ(Where(), (Place{25, 25, 1})) << "a page that would end behind the last line does nothing";
}

TEST_F(Scrolling, PageUpStepsBackButNotAboveTheFirstLine) {
  Load(30);
  list.SetStrPos(20);
  Key(vbKeyPageUp);
  EXPECT_EQ(Where(), (Place{10, 10, 1}));
  Key(vbKeyPageUp);
  Key(vbKeyPageUp);
  EXPECT_EQ(Where(), (Place{1, 1, 1}));
  events.clear();
  Key(vbKeyPageUp);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(Scrolling, HomeGoesToTheFirstLine) {
  Load(30);
  list.SetStrPos(20);
  Key(vbKeyHome);
  EXPECT_EQ(Where(), (Place{1, 1, 1}));
}

TEST_F(Scrolling, AClearedListHasNothingToScroll) {
  Load(40);
  list.vs.UserScroll(20, false);
  list.Clear();
  EXPECT_EQ(list.vs.Max(), 0);
  list.vs.UserScroll(20, false);
  EXPECT_EQ(list.vs.Value(), 0) << "the bar of an empty list stays where it is";
  list.AddItem("x");
  EXPECT_EQ(list.vs.Min(), 1);
  EXPECT_EQ(list.vs.Max(), 1);
  EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(Scrolling, HomeWithOneLineDoesNothing) {
  Load(1);
  Key(vbKeyHome);
  EXPECT_EQ(Where(), (Place{1, 1, 1}));
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(Scrolling, EndShowsTheLastLineUnderTheCurrentOne) {
  Load(30);
  Key(vbKeyEnd);
  EXPECT_EQ(Where(), (Place{29, 29, 1}));
  EXPECT_EQ(DrawnTexts().back(), "text 392 0 \" 29\" Arial 9.75 #000000");
}

TEST_F(Scrolling, EndWithTwoLinesDoesNothing) {
  Load(2);
  Key(vbKeyEnd);
  EXPECT_EQ(Where(), (Place{1, 1, 1}));
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(Scrolling, AStepOfTheBarKeepsTheHighlightOnItsLine) {
  Load(30);
  list.SetStrPos(20);
  list.vs.UserScroll(18, false);
  EXPECT_EQ(Where(), (Place{19, 20, 2}));
  list.vs.UserScroll(17, false);
  EXPECT_EQ(Where(), (Place{18, 20, 3}));
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(Scrolling, AJumpOfTheBarMakesTheTopLineTheCurrentOne) {
  Load(30);
  list.vs.UserScroll(10, false);
  EXPECT_EQ(Where(), (Place{11, 11, 1}));
}

TEST_F(Scrolling, TheBarFollowsWhileItIsDragged) {
  Load(30);
  list.vs.UserScroll(10, true);
  EXPECT_EQ(Where(), (Place{11, 11, 1}));
}

TEST_F(Scrolling, TheBarCountsHiddenLinesToo) {
  LoadFolded();
  EXPECT_EQ(list.vs.Max(), 5);
  list.vs.UserScroll(2, false);
  EXPECT_EQ(list.TopLine(), 4) << "the visible line in the direction of travel";
  EXPECT_EQ(list.vs.Value(), 3);
  list.vs.UserScroll(1, false);
  EXPECT_EQ(list.TopLine(), 1);
}

TEST_F(Scrolling, TheBarAtItsEndShowsTheLastLine) {
  Load(30);
  list.vs.UserScroll(30, false);
  EXPECT_EQ(list.TopLine(), 30);
}

TEST_F(Scrolling, TheHorizontalBarRepaints) {
  Load(3);
  list.hs.UserScroll(1, false);
  EXPECT_THAT(DrawnTexts(), testing::Contains("text 392 0 \"1\" Arial 9.75 #000000"));
}

TEST_F(Scrolling, AResizeKeepsTheCurrentLine) {
  Load(30);
  list.SetStrPos(20);
  list.Move(0, 0, 3000, 1200);
  EXPECT_EQ(Where(), (Place{18, 20, 3}));
}

TEST_F(Scrolling, AResizeKeepsTheCurrentLineOfARowThatIsLost) {
  Load(30);
  for (int step = 1; step <= 7; ++step) Key(vbKeyDown);
  ASSERT_EQ(Where(), (Place{1, 8, 8}));
  list.Move(0, 0, 4000, 1170);
  EXPECT_EQ(Where(), (Place{6, 8, 3}));
  EXPECT_THAT(DrawnTexts().back(), testing::HasSubstr(" 468 \" 8\""));
}

TEST_F(Scrolling, AListThatHadNoHeightHasItsCurrentRowAgain) {
  for (long count : {1, 30}) {
    list.Move(0, 0, 4000, 2340);
    Load(count);
    list.SetHeight(0);
    list.SetHeight(2340);
    EXPECT_EQ(Where(), (Place{1, 1, 1})) << count;
    EXPECT_THAT(Drawn("fill"), testing::Contains("fill 0 0 3745 234 #a0ffdc")) << count;
  }
}

TEST_F(Scrolling, AnEmptyListIsClearOnAllOfItsNewSize) {
  list.Move(0, 0, 4000, 4680);
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 0 0 392 4680 system:22"));
}

TEST_F(Scrolling, AControlOfNoHeightIsHarmless) {
  Load(30);
  list.SetHeight(0);
  Key(vbKeyDown);
  Key(vbKeyPageDown);
  list.Move(0, 0, 4000, 2340);
  EXPECT_EQ(list.VisibleRows(), 10);
}

TEST_F(Scrolling, AnEmptyListTakesAnyKey) {
  for (int key : {vbKeyUp, vbKeyDown, vbKeyPageUp, vbKeyPageDown, vbKeyHome, vbKeyEnd}) Key(key);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(Scrolling, WithEveryLineHiddenTheTopStays) {
  list.sGrid("TREE");
  list.SetText("++a\r\n");
  EXPECT_EQ(list.TopLine(), 1);
  list.pic.Paint();
  for (int key : {vbKeyUp, vbKeyDown, vbKeyPageUp, vbKeyPageDown, vbKeyHome, vbKeyEnd}) Key(key);
  EXPECT_EQ(list.TopLine(), 1);
  list.SetText("++a\r\n++b\r\n++c\r\n");
  for (int key : {vbKeyPageDown, vbKeyPageUp, vbKeyHome, vbKeyEnd}) Key(key);
  EXPECT_EQ(list.TopLine(), 1);
}

TEST_F(Scrolling, HomeWithAHiddenFirstLineShowsTheFirstVisibleOne) {
  list.sGrid("TREE");
  list.SetText("++a\r\n++b\r\nc\r\nd\r\ne\r\n");
  list.SetStrPos(5);
  Canvas().Forget();
  Key(vbKeyHome);
  EXPECT_EQ(Where(), (Place{3, 3, 1}));
  EXPECT_EQ(DrawnTexts().size(), 2u * 3 + 2) << "each entry twice, for its bold, and the current one again";
}

TEST_F(Scrolling, EndWithAllButTheLastLineHiddenShowsThatLine) {
  list.sGrid("TREE");
  list.SetText("++a\r\n++b\r\nc\r\n");
  Key(vbKeyEnd);
  EXPECT_EQ(Where(), (Place{3, 3, 1}));
  EXPECT_THAT(DrawnTexts(), Not(IsEmpty()));
}

TEST_F(Scrolling, ADragOverHiddenLinesKeepsItsDirection) {
  LoadFolded();
  list.vs.UserScroll(2, true);
  EXPECT_EQ(list.TopLine(), 4);
  EXPECT_EQ(list.vs.Value(), 2) << "the bar stays under the hand";
  list.vs.UserScroll(3, true);
  EXPECT_EQ(list.TopLine(), 4);
  list.vs.UserScroll(2, true);
  EXPECT_EQ(list.TopLine(), 1) << "back over the hidden lines";
  list.vs.UserScroll(3, true);
  EXPECT_EQ(list.TopLine(), 4);
  list.vs.UserScroll(4, true);
  list.vs.UserScroll(2, true);
  list.vs.UserScroll(2, false);
  EXPECT_EQ(list.TopLine(), 1);
  EXPECT_EQ(list.vs.Value(), list.vs.Min()) << "let go, it stands where the list does";
}

TEST_F(Scrolling, ABarLetGoOverHiddenLinesTakesTheValueOfTheTopLine) {
  LoadFolded();
  list.vs.UserScroll(2, true);
  list.vs.UserScroll(2, false);
  EXPECT_EQ(list.TopLine(), 4);
  EXPECT_EQ(list.vs.Value(), 3);
}

TEST_F(Scrolling, TheBarUpToItsMinimumShowsTheFirstLine) {
  Load(30);
  list.vs.UserScroll(10, false);
  list.vs.UserScroll(1, false);
  EXPECT_EQ(list.TopLine(), 1);
  list.vs.UserScroll(10, true);
  list.vs.UserScroll(1, true);
  list.vs.UserScroll(1, false);
  EXPECT_EQ(list.TopLine(), 1);
}

TEST_F(Scrolling, StepsOfTheBarFromTheTopGoLineByLine) {
  Load(30);
  for (long top : {2, 3, 4}) {
    list.vs.UserScroll(list.vs.Value() + 1, false);
    EXPECT_EQ(list.TopLine(), top);
  }
  for (long top : {3, 1}) {  // the minimum is the first line
    list.vs.UserScroll(list.vs.Value() - 1, false);
    EXPECT_EQ(list.TopLine(), top);
  }
}

TEST_F(Scrolling, AStepOfTheBarUpFromTheSecondLineShowsTheFirst) {
  Load(30);
  const auto step_up = [this] {
    ASSERT_EQ(list.TopLine(), 2);
    list.vs.UserScroll(list.vs.Value() - 1, false);
    EXPECT_EQ(list.TopLine(), 1);
  };
  list.SetStrPos(4);
  step_up();
  list.SetStrPos(5);
  for (int step = 1; step <= 3; ++step) Key(vbKeyUp);
  step_up();
  list.SetStrPos(1);
  for (int step = 1; step <= 9; ++step) Key(vbKeyDown);
  step_up();
}

TEST_F(Scrolling, AStepOfTheBarFromTheTopAndBackKeepsTheHighlightOnItsLine) {
  Load(30);
  for (int step = 0; step < 4; ++step) Key(vbKeyDown);
  list.vs.UserScroll(2, false);
  EXPECT_EQ(Where(), (Place{2, 5, 4}));
  list.vs.UserScroll(1, false);
  EXPECT_EQ(Where(), (Place{1, 5, 5}));
}

TEST_F(Scrolling, SetStrPosLeavesTheBarWhenTheTopIsTheFirstLine) {
  Load(30);
  list.SetStrPos(20);
  list.SetStrPos(2);
  EXPECT_EQ(list.TopLine(), 1);
  EXPECT_EQ(list.vs.Value(), 17);
}

TEST_F(Scrolling, GoHomeRemembersTheLineThatItLeavesButNotTheFirst) {
  Load(9, "VB");
  list.SetStrPos(5);
  list.GoHome();
  list.GoHome();
  toolkit.OnPopup("Previous");
  Press(1, 1000, forms::vbRightButton);
  ReleaseAt(1, 1000, forms::vbRightButton);
  EXPECT_EQ(list.ListIndex(), 5);
}

TEST_F(Scrolling, SetStrPosOfAHiddenLineMovesOnButGivesItsIndex) {
  LoadFolded();
  EXPECT_EQ(list.SetStrPos(3), 3);
  EXPECT_EQ(Where(), (Place{1, 5, 3})) << "what stands on the third row";
}

TEST_F(Scrolling, AHiddenTopLineGivesItsPlaceToTheNextVisibleOne) {
  list.sGrid("TREE");
  list.SetText(
      "++a\r\n++b\r\n\x03"
      "c\r\nd\r\n");
  EXPECT_EQ(Where(), (Place{3, 3, 1}));
  EXPECT_THAT(DrawnTexts(), testing::Contains("text 392 0 \" c\" Arial 9.75 #000000"));
}

TEST_F(Scrolling, AFoldedTopLineLeavesTheCurrentRowInItsPlace) {
  list.sGrid("VB");
  list.SetText("a\r\nDo\r\nb\r\nc\r\nd\r\nLoop\r\n" + runtime::Replace(std::string(20, 'x'), "x", "e\r\n"));
  list.SetStrPos(5);
  ASSERT_EQ(Where(), (Place{3, 5, 3}));
  toolkit.OnPopup("Collapse here");
  Press(3, 450, forms::vbRightButton);
  ReleaseAt(3, 450, forms::vbRightButton);
  EXPECT_EQ(Where(), (Place{6, 8, 3}));
}

TEST_F(Scrolling, NothingIsRepaintedDuringALoad) {
  list.sGrid("TEXT");
  services.loop.on_do_events = [this] {
    Canvas().Forget();
    list.pic.Paint();
    EXPECT_THAT(Canvas().Calls(), IsEmpty());
  };
  list.SetText(runtime::Replace(std::string(25, 'x'), "x", "a\r\n"));
  EXPECT_EQ(services.loop.yields, 1);
}

TEST_F(Scrolling, NothingIsRepaintedWhileTheListItselfMovesTheBar) {
  Load(30);
  long moves = 0;
  list.vs.Change = [&] {
    ++moves;
    Canvas().Forget();
    list.pic.Paint();
    EXPECT_THAT(Drawn("clear"), IsEmpty());
  };
  list.SetStrPos(20);
  EXPECT_EQ(moves, 1);
}

TEST_F(Scrolling, APageThatWouldEndOnTheLastLineDoesNothing) {
  Load(9);
  Key(vbKeyPageDown);
  EXPECT_EQ(Where(), (Place{1, 1, 1}));
  EXPECT_THAT(events, IsEmpty());
  Load(10);
  Key(vbKeyPageDown);
  EXPECT_EQ(Where(), (Place{9, 9, 1}));
}

TEST_F(Scrolling, PagesAndJumpsClearThePaneFirst) {
  Load(30);
  list.SetStrPos(15);
  const std::pair<const char*, std::function<void()>> kMoves[] = {
      {"Page Down", [this] { Key(vbKeyPageDown); }},
      {"Page Up", [this] { Key(vbKeyPageUp); }},
      {"End", [this] { Key(vbKeyEnd); }},
      {"Home", [this] { Key(vbKeyHome); }},
      {"the bar", [this] { list.vs.UserScroll(20, false); }}};
  for (const auto& [name, move] : kMoves) {
    Canvas().Forget();
    move();
    ASSERT_FALSE(Canvas().Calls().empty()) << name;
    EXPECT_EQ(Canvas().Calls().front(), "clear #ffffff") << name;
    EXPECT_EQ(Drawn("clear").size(), 1u) << name;
  }
}

TEST_F(Scrolling, AStepOfTheBarUpKeepsTheHighlightInFrontOfTheLastRow) {
  Load(30);
  list.SetStrPos(4);
  for (int step = 0; step < 6; ++step) Key(vbKeyDown);
  ASSERT_EQ(Where(), (Place{2, 10, 9}));
  list.vs.UserScroll(list.vs.Value() - 1, false);
  EXPECT_EQ(Where(), (Place{1, 9, 9}));
}

TEST_F(Scrolling, AStepOfTheBarUpMovesTheHighlightedRowDown) {
  Load(30);
  list.SetStrPos(20);
  list.vs.UserScroll(list.vs.Value() - 1, false);
  EXPECT_EQ(Where(), (Place{17, 20, 4}));
}

}  // namespace
}  // namespace corvane::codelist
