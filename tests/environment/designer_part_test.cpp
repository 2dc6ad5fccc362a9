#include "environment/designer_part.h"

#include <random>

#include "environment/designer_lines.h"
#include "tests/environment/designer_fixture.h"
#include "tests/support/processor_time.h"

namespace corvane::environment {
namespace {

std::vector<std::string> Reasons(const DesignerPart& part) {
  std::vector<std::string> reasons;
  for (const DesignerProblem& problem : part.Problems())
    reasons.push_back(std::to_string(problem.line) + ": " + problem.reason);
  return reasons;
}

TEST(DesignerPart, AnUneditedPartIsWrittenByteForByte) {
  const std::string text = Crlf(kStockForm);
  const DesignerPart part(text);
  EXPECT_EQ(part.Write(), text);
  EXPECT_TRUE(part.IsUnderstood());
  ASSERT_TRUE(part.Root());
  EXPECT_EQ(part.Root()->name, "frmStock");
  EXPECT_EQ(part.Root()->Children().size(), 5u);
  EXPECT_EQ(part.Root()->Children()[0]->Children().size(), 2u);
}

struct Awkward {
  const char* name;
  std::string text;
  std::vector<std::string> reasons;
};

class DesignerPartAwkward : public testing::TestWithParam<Awkward> {};

TEST_P(DesignerPartAwkward, IsKeptAndReported) {
  const DesignerPart part(GetParam().text);
  EXPECT_EQ(part.Write(), GetParam().text);
  EXPECT_EQ(Reasons(part), GetParam().reasons);
}

const Awkward kAwkward[] = {
    {"BareLineFeeds", "VERSION 5.00\nBegin VB.Form F \n   Caption         =   \"x\"\nEnd\n", {}},
    {"NoLineEndAtTheEnd", "VERSION 5.00\r\nBegin VB.Form F \r\nEnd", {}},
    {"NoTrailingBlanks",
     "VERSION 5.00\r\nBegin VB.Form F\r\nBeginProperty Font\r\nName = \"x\"\r\nEndProperty\r\nEnd\r\n",
     {}},
    {"BlankLines", "VERSION 5.00\r\n\r\nBegin VB.Form F \r\n\r\n   Tag = \"\"\r\n\r\nEnd\r\n\r\n", {}},
    {"OtherCase", "version 5.00\nBEGIN VB.Form F\n beginproperty Font\n endproperty\nEND\n", {}},
    {"Tabs", "VERSION 5.00\nBegin\tVB.Form\tF\n\tCaption\t=\t\"x\"\t\nEnd\t\n", {}},
    {"DesignerOfAGuid", "VERSION 5.00\nBegin {C0E45035-5775-11D0-B388-00A0C9055D8E} Data \n   _Version = 1\nEnd\n", {}},
    {"HeadOfAClass", "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\n", {}},
    {"PropertyBehindChildren", "VERSION 5.00\nBegin VB.Form F \n Begin VB.Label L \n End\n Caption = \"x\"\nEnd\n", {}},
    {"DecimalComma", "VERSION 5.00\nBegin VB.Form F \n   FontSize = 8,25\n   Object.Width = 1e-4\nEnd\n", {}},
    {"ControlBytes", "VERSION 5.00\nBegin VB.Form F \n   Caption = \"a\x05\x7F\x01z\"\nEnd\n", {}},
    {"PropertyCalledEnd", "VERSION 5.00\nBegin VB.Form F \n   End = 1\n   Begin = 2\nEnd\n", {}},
    {"Nested",
     "VERSION 5.00\nBegin X.Y Z \n BeginProperty A {1} \n BeginProperty B \n C = 1\n EndProperty\n EndProperty\nEnd\n",
     {}},
    {"LettersBeyondAscii",
     "VERSION 5.00\nBegin VB.Form F\xF6rm \n   Gr\xF6\xDF"
     "e = 1\nEnd\n",
     {}},
    {"OlderVersion",
     "VERSION 2.00\nBegin Form F \n   Icon            =   ICON.FRX:0000\nEnd\n",
     {"1: a form of an older version (VERSION 2.00)"}},
    {"ConflictMarks",
     "VERSION 5.00\nBegin VB.Form F \n<<<<<<< .working\n   Tag = \"a\"\n=======\n   Tag = \"b\"\n>>>>>>> .merge\nEnd\n",
     {"3: neither a property nor Begin or End: <<<<<<< .working",
      "5: neither a property nor Begin or End: =======", "7: neither a property nor Begin or End: >>>>>>> .merge"}},
    {"CutOffInABlock",
     "VERSION 5.00\nBegin VB.Form F \n   Begin VB.Label L \n      Capti",
     {"4: neither a property nor Begin or End: Capti", "4: the designer part breaks off before its End"}},
    {"OnlyAVersion", "VERSION 5.00\n", {"1: no Begin in the designer part"}},
    {"OpenQuote",
     "VERSION 5.00\nBegin VB.Form F \n   Caption = \"a\nEnd\n",
     {"3: text without its closing quote: Caption = \"a"}},
    {"MixedEnds",
     "VERSION 5.00\nBegin VB.Form F \n BeginProperty Font \n End\n EndProperty\nEndProperty\nEnd\n",
     {"4: End where EndProperty is due", "6: EndProperty where End is due"}},
    {"BeginInAProperty",
     "VERSION 5.00\nBegin VB.Form F \n BeginProperty Font \n Begin VB.Label L \n End\n EndProperty\nEnd\n",
     {"4: Begin inside BeginProperty"}},
    {"TextBehindTheEnd",
     "VERSION 5.00\nBegin VB.Form F \nEnd\nEnd\nEnd\n",
     {"4: behind the End of the designer part: End"}},
    {"StrangeHead",
     "VERSION 5.00\nnot of the head\nBegin VB.Form F \nEnd\n",
     {"2: neither VERSION, Object nor Begin: not of the head"}},
};

INSTANTIATE_TEST_SUITE_P(Cases, DesignerPartAwkward, testing::ValuesIn(kAwkward),
                         [](const auto& info) { return std::string(info.param.name); });

struct Extent {
  const char* name;
  std::string part, rest;
};

class DesignerPartExtent : public testing::TestWithParam<Extent> {};

TEST_P(DesignerPartExtent, EndsWhereTheCodeBegins) {
  EXPECT_EQ(DesignerPartLength(GetParam().part + GetParam().rest), GetParam().part.size());
}

const std::string kSmall = "VERSION 5.00\r\nBegin VB.Form F \r\n   Begin VB.Label L \r\n   End\r\nEnd\r\n";
const Extent kExtents[] = {
    {"Form", kSmall, "Attribute VB_Name = \"F\"\r\nOption Explicit\r\n"},
    {"CodeWithoutAttributes", kSmall, "Sub A ()\r\nEnd Sub\r\n"},
    {"Class", "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\n", "Attribute VB_Name = \"C\"\n"},
    {"NothingBehind", kSmall, ""},
    {"StandardModule", "", "Attribute VB_Name = \"M\"\r\nBegin = 1\r\n"},
    {"NoVersion", "", "Option Explicit\r\nVERSION = 5\r\n"},
    {"EndMissing", "VERSION 5.00\nBegin VB.Form F \n   Begin VB.Label L \n   End\n", "Attribute VB_Name = \"F\"\n"},
    {"CutOff", "VERSION 5.00\nBegin VB.Form F \n   Begin VB.La", ""},
    {"EndTwice", kSmall + "End\r\n", "Attribute VB_Name = \"F\"\r\n"},
    {"BlankBehindTheEnd", kSmall + "\r\n", "Attribute VB_Name = \"F\"\r\n"},
    {"Empty", "", ""},
};

INSTANTIATE_TEST_SUITE_P(Cases, DesignerPartExtent, testing::ValuesIn(kExtents),
                         [](const auto& info) { return std::string(info.param.name); });

// [levels] blocks, one in the other, behind a VERSION line.
std::string Nest(long levels, const std::string& open, const std::string& close) {
  std::string text = "VERSION 5.00\n";
  for (long i = 0; i < levels; ++i) text += i == 0 ? "Begin VB.Form F\n" : open;
  for (long i = levels; i-- > 0;) text += i == 0 ? "End\n" : close;
  return text;
}

TEST(DesignerPart, TwoHundredLevelsAreUnderstood) {
  EXPECT_TRUE(DesignerPart(Nest(kDeepestLevel, "Begin VB.Frame A\n", "End\n")).IsUnderstood());
  EXPECT_TRUE(DesignerPart(Nest(kDeepestLevel, "BeginProperty A\n", "EndProperty\n")).IsUnderstood());
}

TEST(DesignerPart, WhatIsNestedDeeperIsKeptAndReportedOnce) {
  for (const long levels : {201L, 200000L})
    for (const auto& [open, close] :
         {std::pair("Begin VB.Frame A\n", "End\n"), std::pair("BeginProperty A\n", "EndProperty\n")}) {
      const std::string text = Nest(levels, open, close);
      const DesignerPart part(text);
      EXPECT_EQ(Reasons(part), std::vector<std::string>{"202: nested too deeply: more than 200 levels"});
      EXPECT_EQ(part.Write(), text);
      EXPECT_EQ(DesignerPartLength(text + "Option Explicit\n"), text.size());
    }
}

TEST(DesignerPart, WhatIsNestedTooDeeplyAndBreaksOffIsKept) {
  std::string text = Nest(200000, "Begin VB.Frame A\n", "");
  text.resize(text.size() - std::string("End\n").size());
  const DesignerPart part(text);
  EXPECT_EQ(Reasons(part), (std::vector<std::string>{"202: nested too deeply: more than 200 levels",
                                                     "200001: the designer part breaks off before its End"}));
  EXPECT_EQ(part.Write(), text);
}

// Lines of every kind in every disorder: whatever comes in goes out.
TEST(DesignerPart, AnySequenceOfLinesIsWrittenBack) {
  const std::vector<std::string> lines = {"VERSION 5.00",
                                          "Object = \"{1}#2.0#0\"; \"A.OCX\"",
                                          "Begin VB.Form F ",
                                          "Begin",
                                          "   Begin VB.Label L",
                                          "End",
                                          "   EndProperty",
                                          "   BeginProperty Font ",
                                          "",
                                          "   Caption         =   \"a\"\"b\"",
                                          "=====",
                                          "x = \"open",
                                          " \t ",
                                          "Tag=",
                                          "=",
                                          "   Left = 1,5  'x",
                                          "\x01\x02",
                                          "BeginProperty",
                                          "   _X = $\"F.frx\":00A3"};
  std::mt19937 random(20);
  for (int round = 0; round < 3000; ++round) {
    std::string text;
    const int count = static_cast<int>(random() % 14);
    for (int i = 0; i < count; ++i) text += lines[random() % lines.size()] + (random() % 3 ? "\r\n" : "\n");
    if (random() % 4 == 0 && !text.empty()) text.pop_back();
    const DesignerPart part(text);
    ASSERT_EQ(part.Write(), text);
    ASSERT_LE(DesignerPartLength(text), text.size());
  }
}

TEST(DesignerPart, FourThousandLinesAreReadAtOnce) {
  std::string text = "VERSION 5.00\r\nBegin VB.Form F \r\n";
  for (int i = 0; i < 500; ++i)
    text += Crlf("   Begin VB.Label Label" + std::to_string(i) +
                 " \n      Caption         =   \"x\"\n      Height          =   495\n      Left            =   0\n"
                 "      TabIndex        =   0\n      Top             =   0\n      Width           =   1215\n   End\n");
  text += "End\r\n";
  double best = 1e9;
  for (int round = 0; round < 5; ++round) {
    const double start = tests::ProcessorSeconds();
    const DesignerPart part(text);
    best = std::min(best, 1000.0 * (tests::ProcessorSeconds() - start));
    ASSERT_EQ(part.Root()->Children().size(), 500u);
  }
  RecordProperty("milliseconds", std::to_string(best));
  EXPECT_LT(best, 50.0);  // 0.4 in a release build; unoptimised and under a sanitizer it is many times slower
}

struct ValueCase {
  std::string line, text, comment;
};

TEST(DesignerLines, AValueEndsWhereItsCommentBegins) {
  const ValueCase cases[] = {
      {"   Visible         =   0   'False\r\n", "0", "'False"},
      {"   Caption         =   \"it's \"\"so\"\"\"\r\n", "\"it's \"\"so\"\"\"", ""},
      {"   Caption         =   \"a\"  'b\n", "\"a\"", "'b"},
      {"   BorderStyle     =   1  'Fest Einfach\r\n", "1", "'Fest Einfach"},
      {"   Tag=", "", ""},
  };
  for (const ValueCase& c : cases) {
    EXPECT_EQ(ValueOf(c.line).text, c.text) << c.line;
    EXPECT_EQ(ValueOf(c.line).comment, c.comment) << c.line;
  }
}

TEST(DesignerLines, AReferenceNamesAFileAndAnOffset) {
  struct {
    const char* value;
    bool is_reference;
    const char* file;
    size_t offset;
    bool is_text, is_quoted;
  } const cases[] = {
      {"\"Form1.frx\":0000", true, "Form1.frx", 0, false, true},
      {"$\"Form 1.frx\":00A3", true, "Form 1.frx", 0xA3, true, true},
      {"\"Form1.frx\":1A2B3C", true, "Form1.frx", 0x1A2B3C, false, true},
      {"ICON.FRX:0010", true, "ICON.FRX", 0x10, false, false},
      {"\"a:b\"", false, "", 0, false, false},
      {"\"10:30\"", false, "", 0, false, false},
      {"10:30", false, "", 0, false, false},
      {"\"a\":xyz", false, "", 0, false, false},
      {"\"a\":", false, "", 0, false, false},
      {":0000", false, "", 0, false, false},
      {"\"Form1.frx\":FFFFFFFFFFFFFFFFFFFFFFFFFF", false, "", 0, false, false},
  };
  for (const auto& c : cases) {
    SiblingReference reference;
    ASSERT_EQ(ReadReference(c.value, reference), c.is_reference) << c.value;
    if (!c.is_reference) continue;
    EXPECT_EQ(reference.file, c.file) << c.value;
    EXPECT_EQ(reference.offset, c.offset) << c.value;
    EXPECT_EQ(reference.is_text, c.is_text) << c.value;
    EXPECT_EQ(reference.is_quoted, c.is_quoted) << c.value;
    EXPECT_EQ(WriteReference(reference), c.value);
  }
}

TEST(DesignerLines, ALongNameTouchesItsSign) {
  EXPECT_EQ(PropertyLine(1, "InvisibleAtRuntime", "-1  'True", "\r\n"), "   InvisibleAtRuntime=   -1  'True\r\n");
  EXPECT_EQ(PropertyLine(2, "Tag", "\"x\"", "\n"), "      Tag             =   \"x\"\n");
}

}  // namespace
}  // namespace corvane::environment
