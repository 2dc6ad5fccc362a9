#include "forms/icons.h"
#include "list_fixture.h"
#include "runtime/code_page.h"

namespace corvane::codelist {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr char kGutterOfRow1[] = "fill 0 0 392 234 system:22";

class Painter : public ListTest {
 protected:
  // One line in a list of [mode]; what is drawn for it, without the highlight, on row 2.
  std::vector<std::string> TextsOf(const std::string& line, const std::string& mode = "TEXT") {
    list.sGrid(mode);
    list.SetText("::\r\n" + line + "\r\n");
    return TextsOnRow(2);
  }
  std::vector<std::string> TextsOnRow(long row) {
    const std::string y = " " + std::to_string((row - 1) * 234) + " \"";
    std::vector<std::string> texts;
    for (const std::string& call : DrawnTexts())
      if (call.find(y) != std::string::npos) texts.push_back(call.substr(5));
    Canvas().Forget();
    return texts;
  }
  std::string PictureOf(const char* icon) { return forms::RecordingCanvas::PictureText(*forms::Icon(icon)); }
  void Redraw() {
    Canvas().Forget();
    list.pic.Paint();
  }
};

TEST_F(Painter, DrawsRunsBetweenMarksInTheColourOfTheirLevel) {
  list.sGrid("VB");
  list.SetText("x\r\nIf a Then b\r\n");
  EXPECT_THAT(TextsOnRow(2), ElementsAre("482 234 \"If\" Arial 9.75 #000000", "490 234 \"If\" Arial 9.75 #000000",
                                         "686 234 \" a \" Arial 9.75 #0000ff", "972 234 \"Then\" Arial 9.75 #000000",
                                         "980 234 \"Then\" Arial 9.75 #000000", "1372 234 \" b\" Arial 9.75 #0000ff"));
}

TEST_F(Painter, HalfACharacterOfTwoBytesIsScrolledOutWhole) {
  runtime::SetAnsiCodePage(932);
  list.sGrid("TEXT");
  list.SetText("x\r\n\x83\x41\x83\x83\x83z\r\n");  // the last lead byte is followed by "z"
  TextsOnRow(2);
  const char* const shown[] = {"\x83\x41\x83\x83\x83z", "\x83\x83\x83z", "\x83\x83\x83z", "\x83z"};
  for (long column = 1; column <= 4; ++column) {
    list.hs.SetValue(column);
    EXPECT_THAT(TextsOnRow(2), ElementsAre("392 234 \"" + std::string(shown[column - 1]) + "\" Arial 9.75 #000000"));
  }
  list.hs.SetValue(6);
  EXPECT_THAT(TextsOnRow(2), IsEmpty());
  runtime::SetAnsiCodePage(1252);
}

TEST_F(Painter, DrawsACommentInGreyWithItsMark) {
  EXPECT_THAT(TextsOf("a 'b", "VB"),
              ElementsAre("392 234 \" a \" Arial 9.75 #000000", "686 234 \"'b\" Arial 9.75 #c0c0c0"));
}

TEST_F(Painter, AStringInTheRunKeepsTheCommentInTheCodesColour) {
  EXPECT_THAT(TextsOf("a = \"\" 'b", "VB"), ElementsAre("392 234 \" a = \"\" 'b\" Arial 9.75 #000000"));
  EXPECT_THAT(TextsOf("''\"", "VB"), Contains(HasSubstr("#c0c0c0"))) << "but not at the start of the run";
}

TEST_F(Painter, DrawsCommentsOfSql) {
  EXPECT_THAT(TextsOf("a -- b", "SQL"),
              ElementsAre("392 234 \" a \" Arial 9.75 #000000", "686 234 \"-- b\" Arial 9.75 #c0c0c0"));
  EXPECT_THAT(TextsOf("a /* b */", "SQL"), Contains(HasSubstr("\"/* b */\" Arial 9.75 #c0c0c0")));
}

TEST_F(Painter, DrawsALineInsideABlockCommentInGrey) {
  list.sGrid("SQL");
  list.SetText("/* a\r\nb\r\n");
  EXPECT_THAT(TextsOnRow(2), ElementsAre("490 234 \" b\" Arial 9.75 #c0c0c0"));
}

TEST_F(Painter, OtherListsHaveNoComments) {
  EXPECT_THAT(TextsOf("a 'b -- c"), ElementsAre("392 234 \" a 'b -- c\" Arial 9.75 #000000"));
}

TEST_F(Painter, DrawsACaptionBoldAndUnderlinedBetweenItsBlanks) {
  EXPECT_THAT(TextsOf("::  Heading "), ElementsAre("392 234 \"" + runtime::Space(40) + "Heading" + runtime::Space(125) +
                                                   "\" Arial 9.75 bold underline #000080"));
}

TEST_F(Painter, DrawsAnEmptyCaptionForTheColonsAlone) {
  EXPECT_THAT(TextsOf("::"), ElementsAre("392 234 \"" + runtime::Space(165) + "\" Arial 9.75 bold underline #000080"));
}

TEST_F(Painter, ABlankInFrontMakesNoCaption) {
  EXPECT_THAT(TextsOf(" ::x"), ElementsAre("392 234 \"  ::x\" Arial 9.75 #000000"));
}

TEST_F(Painter, DrawsOnlyTheCaptionOfAHotLink) {
  EXPECT_THAT(TextsOf("<href=target>here"), ElementsAre("392 234 \"here\" Arial 9.75 bold underline #800080"));
  EXPECT_EQ(list.List(2), "<href=target>here");
}

TEST_F(Painter, ARunThatBeginsWithTheEndOfATagIsNoHotLink) {
  EXPECT_THAT(TextsOf("a/+\\><href=b>c"),
              ElementsAre(HasSubstr("\" a\""), "588 234 \"><href=b>c\" Arial 9.75 #0000ff"));
}

TEST_F(Painter, TheRunBehindAHotLinkStandsBehindItsCaption) {
  EXPECT_THAT(TextsOf("<href=target>here/+\\b"),
              ElementsAre(HasSubstr("392 234 \"here\""), HasSubstr("784 234 \"b\"")));
}

TEST_F(Painter, TheFontIsPlainAgainBehindACaption) {
  list.sGrid("TEXT");
  list.SetText("::a\r\nb\r\n");
  EXPECT_THAT(TextsOnRow(2), ElementsAre("392 234 \" b\" Arial 9.75 #000000"));
}

TEST_F(Painter, CutsCharactersScrolledOutAndKeepsTheLevels) {
  list.sGrid("TEXT");
  list.SetText("x\r\nab/+\\cd\r\n");
  list.hs.SetValue(2);  // the blank in front counts
  EXPECT_THAT(TextsOnRow(2), ElementsAre("392 234 \"b\" Arial 9.75 #000000", "490 234 \"cd\" Arial 9.75 #0000ff"));
  list.hs.SetValue(3);
  EXPECT_THAT(TextsOnRow(2), ElementsAre("392 234 \"cd\" Arial 9.75 #0000ff")) << "no gap in front of the run";
  list.hs.SetValue(4);
  EXPECT_THAT(TextsOnRow(2), ElementsAre("392 234 \"d\" Arial 9.75 #0000ff"));
  list.hs.SetValue(5);
  EXPECT_THAT(TextsOnRow(2), IsEmpty());
}

TEST_F(Painter, AMarkIsNoScrolledCharacterAndStillHoldsBehindIt) {
  list.sGrid("VB");
  list.SetText("x\r\nIf a\r\n");
  const std::string a = " 234 \" a\" Arial 9.75 #0000ff";
  list.hs.SetValue(1);
  EXPECT_THAT(TextsOnRow(2),
              ElementsAre("384 234 \"If\" Arial 9.75 #000000", "392 234 \"If\" Arial 9.75 #000000", "588" + a));
  list.hs.SetValue(2);
  EXPECT_THAT(TextsOnRow(2),
              ElementsAre("384 234 \"f\" Arial 9.75 #000000", "392 234 \"f\" Arial 9.75 #000000", "490" + a))
      << "still bold";
  list.hs.SetValue(3);
  EXPECT_THAT(TextsOnRow(2), ElementsAre("392" + a));
  list.hs.SetValue(4);
  EXPECT_THAT(TextsOnRow(2), ElementsAre("392 234 \"a\" Arial 9.75 #0000ff"));
}

TEST_F(Painter, AKeywordAtTheEndOfALineScrollsOutCharacterByCharacter) {
  list.sGrid("TEXT");
  list.SetText(
      "x\r\na\x02"
      "bc\r\n");
  list.hs.SetValue(3);
  EXPECT_THAT(TextsOnRow(2), ElementsAre("384 234 \"c\" Arial 9.75 #000000", "392 234 \"c\" Arial 9.75 #000000"));
  list.hs.SetValue(4);
  EXPECT_THAT(TextsOnRow(2), IsEmpty());
}

TEST_F(Painter, ALineInsideABlockCommentIsStillGreyWhenItsMarkIsScrolledOut) {
  list.sGrid("SQL");
  list.SetText("/* a\r\nbc\r\n");
  list.hs.SetValue(2);
  EXPECT_THAT(TextsOnRow(2), ElementsAre("392 234 \" c\" Arial 9.75 #c0c0c0")) << "the mark shows as a blank";
  list.hs.SetValue(3);
  EXPECT_THAT(TextsOnRow(2), IsEmpty());
}

TEST_F(Painter, ATreeEntryScrollsByItsCharactersWithoutTheMarkOfBold) {
  list.AddTreeItem("x", 33, false);
  list.AddTreeItem("bc", 33, false);
  list.hs.SetValue(3);  // two blanks stand in front
  EXPECT_THAT(TextsOnRow(2), ElementsAre("384 234 \"c\" Arial 9.75 #000000", "392 234 \"c\" Arial 9.75 #000000"));
  list.hs.SetValue(4);
  EXPECT_THAT(TextsOnRow(2), IsEmpty());
}

TEST_F(Painter, WhatLiesBehindTheRightEdgeIsNotDrawn) {
  list.sGrid("TEXT");
  list.SetText("x\r\n" + std::string(1'000'000, 'y') + "/+\\z\r\n");
  const auto texts = TextsOnRow(2);
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_LT(texts[0].size(), 500u);
  for (const char* front : {"::", "<href=a>"}) {
    const auto emphasized = TextsOf(front + std::string(1'000'000, 'y'));
    ASSERT_EQ(emphasized.size(), 1u) << front;
    EXPECT_LT(emphasized[0].size(), 500u) << front;
    EXPECT_THAT(emphasized[0], HasSubstr("yyy")) << front;
  }
}

TEST_F(Painter, CharactersWithoutWidthDoNotCountAtTheRightEdge) {
  const std::string flat = std::string(500, '\t') + std::string(500, '\x7F');
  EXPECT_THAT(TextsOf("a" + flat + "b"), ElementsAre(HasSubstr("b\" Arial")));
  EXPECT_THAT(TextsOf("::a" + flat + "b"), ElementsAre(HasSubstr("b ")));
}

TEST_F(Painter, TheCurrentLineHasItsColourAndItsPicture) {
  Load(3);
  Redraw();
  EXPECT_THAT(Drawn("fill"), Contains("fill 0 0 3745 234 #a0ffdc"));
  EXPECT_THAT(Drawn("picture"), ElementsAre(HasSubstr("picture 10 10 372 214")));
}

TEST_F(Painter, WithoutFocusTheCurrentLineIsFramed) {
  Load(3);
  window.other.SetFocus();
  EXPECT_THAT(Drawn("frame"), ElementsAre("frame 0 0 3745 234 #00ff00"));
  EXPECT_THAT(Drawn("fill"),
              ElementsAre("fill 0 0 3745 234 #a0ffdc", kGutterOfRow1, "fill 0 0 3745 234 #d2ffe6", kGutterOfRow1));
}

TEST_F(Painter, SelectedLinesAreGreyAndTheCurrentOneDarker) {
  Load(3);
  list.SelectAll();
  EXPECT_THAT(Drawn("fill"), AllOf(Contains("fill 0 234 3745 234 #c0c0c0"), Contains("fill 0 0 3745 234 #808080")));
  Redraw();
  EXPECT_THAT(Drawn("fill"), Contains("fill 0 468 3745 234 #c0c0c0")) << "the bits survive";
}

TEST_F(Painter, WithoutFocusASelectedCurrentLineLooksLikeAnyCurrentLine) {
  Load(3);
  list.SelectAll();
  Canvas().Forget();
  window.other.SetFocus();
  EXPECT_THAT(Drawn("fill"),
              ElementsAre("fill 0 0 3745 234 #808080", kGutterOfRow1, "fill 0 0 3745 234 #d2ffe6", kGutterOfRow1));
}

TEST_F(Painter, NothingIsDrawnDuringALoad) {
  list.sGrid("TEXT");
  services.loop.on_do_events = [this] { EXPECT_THAT(DrawnTexts(), IsEmpty()); };
  list.SetText(runtime::Replace(std::string(40, 'x'), "x", "a\r\n"));
  EXPECT_EQ(services.loop.yields, 2);
  EXPECT_THAT(DrawnTexts(), Not(IsEmpty()));
}

TEST_F(Painter, AppendedLinesAreDrawnBelowOneAnother) {
  list.sGrid("TEXT");
  list.AddItem("a");
  list.AddItem("b");
  EXPECT_THAT(DrawnTexts(),
              ElementsAre("text 392 0 \" a\" Arial 9.75 #000000", "text 392 234 \" b\" Arial 9.75 #000000"));
  EXPECT_THAT(Drawn("fill"), Contains("fill 0 0 3745 234 #a0ffdc")) << "the first is the current one";
}

TEST_F(Painter, LinesBelowTheSurfaceAreCountedButNotDrawn) {
  list.sGrid("VB");
  for (int line = 0; line < 100; ++line) list.AddItem("do");
  EXPECT_EQ(list.LineLevel(100), 33 + 99);
  EXPECT_LT(DrawnTexts().size(), 30u);
}

TEST_F(Painter, ShowsThePictureOfALine) {
  services.files.Write("C:\\a.bmp", "BMxx");
  list.AddIcon("C:\\a.bmp");
  EXPECT_THAT(TextsOf("\x04"
                      "1\x04"
                      "x"),
              ElementsAre("632 234 \" x\" Arial 9.75 #000000"));
  Redraw();
  EXPECT_THAT(Drawn("picture"), Contains("picture 452 244 194 194 4 bytes, sum 383"));
}

TEST_F(Painter, APictureThatIsNotThereLeavesItsPlace) {
  EXPECT_THAT(TextsOf("\x04"
                      "9\x04"
                      "x"),
              ElementsAre("632 234 \" x\" Arial 9.75 #000000"));
  services.files.Write("C:\\a.bmp", "BMxx");
  list.AddIcon("C:\\a.bmp");
  for (const char* name : {"0", "0.9", "2", "-1", "2147483649", "4294967297", "1E300", "-1E300"}) {
    TextsOf("\x04" + std::string(name) + "\x04x");
    Redraw();
    EXPECT_THAT(Drawn("picture"), Not(Contains(HasSubstr("452 244")))) << name;
  }
}

TEST_F(Painter, AnEmptyPictureNameIsText) {
  EXPECT_THAT(TextsOf("\x04\x04"
                      "x"),
              ElementsAre(HasSubstr("392 234")));
}

TEST_F(Painter, DrawsTheCellsOfAGridAtItsPositions) {
  EXPECT_THAT(TextsOf("a|b|c|d", "|1000,2000"),
              ElementsAre("392 234 \" a\" Arial 9.75 #000000", "1100 234 \"b\" Arial 9.75 #000000",
                          "2100 234 \"c|d\" Arial 9.75 #000000"));
  Redraw();
  EXPECT_THAT(Drawn("line"), AllOf(Contains("line 1000 234 1000 468 #000000 width 1"),
                                   Contains("line 2000 234 2000 468 #000000 width 1")));
}

TEST_F(Painter, TheBarMovesAGridByFiftyTwips) {
  TextsOf("a|b", "|1000");
  list.hs.SetValue(2);
  EXPECT_THAT(TextsOnRow(2), ElementsAre("292 234 \" a\" Arial 9.75 #000000", "1000 234 \"b\" Arial 9.75 #000000"));
}

TEST_F(Painter, ATreeEntryIsBoldAndHasABox) {
  list.AddTreeItem("a", 33, false);
  list.AddTreeItem("b", 34, false);
  list.AddTreeItem("c", 35, true);
  Redraw();
  EXPECT_THAT(TextsOnRow(1), ElementsAre("482 0 \" a\" Arial 9.75 #000000", "490 0 \" a\" Arial 9.75 #000000",
                                         "482 0 \" a\" Arial 9.75 #000000", "490 0 \" a\" Arial 9.75 #000000"));
  Redraw();
  // Twelve blanks of indent: the box stands five blanks in front of the text.
  EXPECT_THAT(Drawn("frame"), ElementsAre("frame 1080 274 150 154 #0000ff"));
  EXPECT_THAT(Drawn("line 1"),
              ElementsAre("line 1115 354 1195 354 #0000ff width 1", "line 1154 312 1154 396 #0000ff width 1"))
      << "a cross: the next entry is hidden";
}

TEST_F(Painter, AnOpenBoxHasOneBar) {
  list.AddTreeItem("a", 34, false);
  list.AddTreeItem(
      "\x03"
      "b",
      35, false);
  Redraw();
  EXPECT_THAT(Drawn("line 1"),
              ElementsAre("line 1118 120 1189 120 #0000ff width 1", "line 1118 120 1189 120 #0000ff width 1"));
}

TEST_F(Painter, APlainTreeEntryHasNoBox) {
  list.AddTreeItem("x", 33, false);
  list.AddTreeItem(
      "\x03"
      "b",
      34, false);
  Redraw();
  EXPECT_THAT(Drawn("frame"), IsEmpty());
  EXPECT_THAT(TextsOnRow(2), ElementsAre("392 234 \"" + runtime::Space(13) + "b\" Arial 9.75 #0000ff"));
}

TEST_F(Painter, APlainTreeEntryIsGreyBehindAnApostrophe) {
  list.AddTreeItem("x", 33, false);
  list.AddTreeItem("\x03q'b", 33, false);
  Redraw();
  EXPECT_THAT(TextsOnRow(2), ElementsAre("392 234 \" q\" Arial 9.75 #000000", "588 234 \"'b\" Arial 9.75 #c0c0c0"));
}

struct Tag {
  const char* entry;
  const char* shown;
  bool box;
};

TEST_F(Painter, ATagIsDroppedFromWhatIsShown) {
  const Tag kTags[] = {{"\x03(key)b", "b", false},
                       {"\x03(key!)b", "b", true},
                       {"\x03(!)b", "b", true},
                       {"\x03()b", "()b", false},
                       {"\x03(b", "(b", false}};
  for (const Tag& tag : kTags) {
    list.Clear();
    list.AddTreeItem("x", 33, false);
    list.AddTreeItem(tag.entry, 34, false);
    Redraw();
    EXPECT_EQ(!Drawn("frame").empty(), tag.box) << tag.entry;
    EXPECT_THAT(TextsOnRow(2), ElementsAre("392 234 \"" + runtime::Space(13) + tag.shown + "\" Arial 9.75 #0000ff"));
    EXPECT_EQ(list.List(2), tag.entry + 1) << "it stays in the line";
  }
}

TEST_F(Painter, AnIconTagIsNotShown) {
  list.AddTreeItem("x", 33, false);
  list.AddTreeItem(
      "\x03"
      "b[icon=3]c",
      33, false);
  Redraw();
  EXPECT_THAT(TextsOnRow(2), ElementsAre("392 234 \" bc\" Arial 9.75 #000000"));
}

TEST_F(Painter, AMenuGroupOfTheScriptTreeHasAPicture) {
  list.ListRole = kScriptTree;
  list.AddTreeItem("x", 33, false);
  list.AddTreeItem("Menu" + runtime::Space(100) + "{", 33, false);
  Redraw();
  // Behind " Menu" and two of the hundred blanks.
  EXPECT_THAT(Drawn("picture"), Contains(HasSubstr("picture 1186 244 194 194")));
}

TEST_F(Painter, RowsAndRuleFillThePane) {
  Load(3);
  list.Clear();
  EXPECT_THAT(Canvas().Calls(),
              ElementsAre("clear #ffffff", "fill 0 0 392 2340 system:22", "line 392 0 392 2340 #000000 width 1"));
}

TEST_F(Painter, AStepDownDrawsTwoRowsOnly) {
  Load(100);
  Key(forms::vbKeyDown);
  EXPECT_EQ(DrawnTexts().size(), 2u);
}

TEST_F(Painter, TextAfterALevelMarkAtTheFirstColumnStartsExactlyAtThePen) {
  list.sGrid("TEXT");
  list.SetText("x\r\nab/+\\cd\r\n");
  list.hs.SetValue(3);
  EXPECT_THAT(TextsOnRow(2), ElementsAre("392 234 \"cd\" Arial 9.75 #0000ff"));
}

TEST_F(Painter, TheStartOfACollapsedStretchHasAYellowDot) {
  list.AddTreeItem("a", 33, false);
  list.AddTreeItem("b", kCollapseStart | kBoundary | 33, false);
  Redraw();
  EXPECT_THAT(Drawn("circle"), ElementsAre("circle 196 351 40 #ff0000 filled #ffff00"));
  EXPECT_EQ(list.pic.FillStyle(), 1);
}

TEST_F(Painter, AStarIsThePictureOfAnItem) {
  EXPECT_THAT(TextsOf("\x04*\x04"
                      "x"),
              ElementsAre("632 234 \" x\" Arial 9.75 #000000"));
  Redraw();
  EXPECT_THAT(Drawn("picture"), Contains("picture 452 244 194 194 " + PictureOf("list-item")));
}

TEST_F(Painter, AMenuGroupWithAnExclamationMarkHasThePictureOfAnItem) {
  ASSERT_NE(PictureOf("list-item"), PictureOf("list-group"));
  list.ListRole = kScriptTree;
  list.AddTreeItem("x", 33, false);
  list.AddTreeItem("Menu" + runtime::Space(100) + "{}", 33, false);
  list.AddTreeItem("Menu" + runtime::Space(100) + "{}!", 33, false);
  list.AddTreeItem("}!" + runtime::Space(100) + "{}", 33, false);
  Redraw();
  EXPECT_THAT(Drawn("picture"), AllOf(Contains("picture 1186 244 194 194 " + PictureOf("list-group")),
                                      Contains("picture 1186 478 194 194 " + PictureOf("list-item")),
                                      Contains("picture 990 712 194 194 " + PictureOf("list-group"))));
}

TEST_F(Painter, ALineInABlockCommentThatHoldsItsBeginningAgainIsGreyFromThere) {
  list.sGrid("SQL");
  list.SetText("/* a\r\nb /* c\r\n");
  EXPECT_THAT(TextsOnRow(2), ElementsAre("392 234 \"  b \" Arial 9.75 #000000", "784 234 \"/* c\" Arial 9.75 #c0c0c0"));
}

TEST_F(Painter, ALineInABlockCommentThatHoldsDashesIsGreyAsAWhole) {
  list.sGrid("SQL");
  list.SetText("/* a\r\nb -- c\r\n");
  EXPECT_THAT(TextsOnRow(2), ElementsAre("490 234 \" b -- c\" Arial 9.75 #c0c0c0"));
}

TEST_F(Painter, TheMarkOfABlockCommentIsNeverDrawn) {
  list.sGrid("SQL");
  list.SetText("/* a\r\n*/ select b\r\n");
  EXPECT_THAT(DrawnTexts(), Not(Contains(HasSubstr("\x06"))));
  list.SetText("/* a\r\nb /* c\r\n");
  EXPECT_THAT(DrawnTexts(), Not(Contains(HasSubstr("\x06"))));
}

TEST_F(Painter, RowsAppendedToAGridStandBelowOneAnother) {
  list.sGrid("|1000,2000");
  list.AddItem("a|b|c");
  list.AddItem("d|e|f");
  EXPECT_THAT(TextsOnRow(2), ElementsAre("392 234 \" d\" Arial 9.75 #000000", "1100 234 \"e\" Arial 9.75 #000000",
                                         "2100 234 \"f\" Arial 9.75 #000000"));
}

TEST_F(Painter, EntriesAppendedToATreeStandBelowOneAnother) {
  list.sGrid("TREE");
  list.AddItem("+a");
  list.AddItem("+b");
  const std::string b = "\" b\" Arial 9.75 #0000ff";
  EXPECT_THAT(TextsOnRow(2), ElementsAre("1658 234 " + b, "1666 234 " + b));
}

TEST_F(Painter, AResizeDuringALoadLeavesAGutterOnAllOfTheSurface) {
  list.sGrid("TEXT");
  services.loop.on_do_events = [this] { list.Move(0, 0, 4000, 4680); };
  list.SetText(runtime::Replace(std::string(25, 'x'), "x", "a\r\n"));
  EXPECT_THAT(Drawn("fill"), Contains("fill 0 0 392 4680 system:22"));
}

TEST_F(Painter, WithTheFocusBackTheCurrentLineHasItsColourAgain) {
  Load(3);
  window.other.SetFocus();
  Canvas().Forget();
  list.SetFocus();
  EXPECT_THAT(Drawn("fill"), ElementsAre("fill 0 0 3745 234 #a0ffdc", kGutterOfRow1));
  EXPECT_THAT(Drawn("frame"), IsEmpty());
}

TEST_F(Painter, WithoutFocusTheCurrentLineHasItsPictureToo) {
  Load(3);
  window.other.SetFocus();
  EXPECT_THAT(Drawn("picture"), ElementsAre("picture 10 10 372 214 " + PictureOf("list-current")));
}

TEST_F(Painter, AnAppendedHiddenLineShowsNoTextAndLeavesItsRow) {
  list.sGrid("TREE");
  list.AddItem(
      "\x03"
      "a");
  list.AddItem(
      "++\x03"
      "b");
  list.AddItem(
      "\x03"
      "c");
  EXPECT_THAT(DrawnTexts(),
              ElementsAre("text 392 0 \" a\" Arial 9.75 #000000", "text 392 234 \" c\" Arial 9.75 #000000"));
}

TEST_F(Painter, AnAppendedLineIsDrawnWhereTheDrawingEndedLast) {
  list.sGrid("TEXT");
  for (const char* line : {"a", "b", "c"}) list.AddItem(line);
  window.other.SetFocus();  // draws the current line, the first
  Canvas().Forget();
  list.AddItem("d");
  EXPECT_THAT(DrawnTexts(), ElementsAre("text 392 234 \" d\" Arial 9.75 #000000")) << "over the second line";
  Redraw();
  EXPECT_THAT(TextsOnRow(4), ElementsAre("392 702 \" d\" Arial 9.75 #000000")) << "until the next repaint";
}

TEST_F(Painter, AMenuGroupOutsideTheScriptTreeHasNoPicture) {
  list.ListRole = kSourcePane;
  list.AddTreeItem("x", 33, false);
  list.AddTreeItem("Menu" + runtime::Space(100) + "{", 33, false);
  Redraw();
  EXPECT_EQ(Drawn("picture").size(), 1u) << "that of the current line";
}

TEST_F(Painter, AnItemOfTheScriptTreeIsAMenuGroupByFourteenBlanksAndABracket) {
  list.ListRole = kScriptTree;
  list.AddTreeItem("x", 33, false);
  const std::pair<std::string, size_t> kEntries[] = {{runtime::Space(100) + "{", 2},
                                                     {runtime::Space(14) + "{" + runtime::Space(100), 2},
                                                     {runtime::Space(13) + "{" + runtime::Space(100), 1},
                                                     {runtime::Space(100) + "x{", 1},
                                                     {runtime::Space(99) + "{", 1},
                                                     {runtime::Space(100), 1}};
  for (const auto& [behind, pictures] : kEntries) {
    list.Clear();
    list.AddTreeItem("x", 33, false);
    list.AddTreeItem("Menu" + behind, 33, false);
    Redraw();
    EXPECT_EQ(Drawn("picture").size(), pictures) << "[" << behind << "]";
  }
}

TEST_F(Painter, AScrolledTreeHasNoBoxes) {
  list.AddTreeItem("a", 34, false);
  Redraw();
  EXPECT_THAT(Drawn("frame"), Not(IsEmpty()));
  Canvas().Forget();
  list.hs.SetValue(1);
  EXPECT_THAT(DrawnTexts(), Not(IsEmpty()));
  EXPECT_THAT(Drawn("frame"), IsEmpty());
}

TEST_F(Painter, ATreeEntryOutsideTheOutermostLevelIsNotIndented) {
  list.AddTreeItem("x", 33, false);
  list.AddTreeItem(
      "\x03"
      "b",
      31, false);
  Redraw();
  EXPECT_THAT(TextsOnRow(2), ElementsAre("392 234 \" b\" Arial 9.75 #808000"));
}

TEST_F(Painter, TheLastTreeEntryHasAnOpenBox) {
  for (long level : {33, 34, 35}) list.AddTreeItem("x", level, level == 35);
  list.Clear();
  for (long level : {33, 34}) list.AddTreeItem("x", level, false);  // where a hidden entry was behind them
  Redraw();
  EXPECT_THAT(Drawn("frame"), ElementsAre("frame 1080 274 150 154 #0000ff"));
  EXPECT_THAT(Drawn("line 1"), ElementsAre("line 1118 354 1189 354 #0000ff width 1"));
}

TEST_F(Painter, ColonsBehindAnotherCharacterThanABlankMakeNoCaption) {
  EXPECT_THAT(TextsOf("a/+\\b::c"), ElementsAre(HasSubstr("\" a\""), "588 234 \"b::c\" Arial 9.75 #0000ff"));
  EXPECT_THAT(TextsOf("a/+\\ ::c"), ElementsAre(HasSubstr("\" a\""), HasSubstr("bold underline #000080")));
}

}  // namespace
}  // namespace corvane::codelist
