// Byte identity: what is opened is written back as it was, and edits change their lines alone.
#include <gtest/gtest.h>
#include <random>

#include "environment/module_head.h"
#include "environment/module_text.h"
#include "environment/open_environment.h"
#include "environment/open_project.h"
#include "tests/environment/opened.h"

namespace corvane::environment {
namespace {

// Files put together from awkward pieces, the same ones with each run.
class Pieces {
 public:
  explicit Pieces(unsigned seed) : random_(seed) {}

  size_t Below(size_t limit) { return std::uniform_int_distribution<size_t>(0, limit - 1)(random_); }

  std::string Line() {
    static const std::string kLines[] = {"",
                                         " ",
                                         "\t",
                                         "Sub A()",
                                         "Public Function F(x, _",
                                         "  y) As Long",
                                         "End Sub",
                                         "End Function",
                                         "'c _",
                                         "Rem x",
                                         "#If Win32 Then",
                                         "#Else",
                                         "#End If",
                                         "Attribute A.VB_UserMemId = 0",
                                         "Attribute F.VB_Description = \"\xE9\"",
                                         "Attribute VB_Ext_KEY = \"k\" ,\"v\"",
                                         "Dim a, b() As String * 3",
                                         "Attribute a.VB_VarHelpID = -1",
                                         "Type T",
                                         "  Property As Long",
                                         "End Type",
                                         "x = \"a\x05\x7F\" : y = 1",
                                         "\x81\x40\x5C",
                                         "Begin",
                                         "End",
                                         "=",
                                         "a\rb",
                                         "Public WithEvents w As X",
                                         "End Sub: Sub B()",
                                         "<<<<<<< .mine",
                                         "100 End Sub",
                                         "Property Get P()",
                                         "_",
                                         " _"};
    return kLines[Below(std::size(kLines))];
  }
  std::string LineEnd(bool mixed, bool lf) { return mixed ? (Below(2) ? "\n" : "\r\n") : lf ? "\n" : "\r\n"; }
  std::string Code(size_t lines) {
    bool mixed = Below(4) == 0, lf = Below(2) == 0;
    std::string text;
    for (size_t i = 0; i < lines; ++i) text += Line() + LineEnd(mixed, lf);
    if (Below(4) == 0) text += Line();
    return text;
  }
  std::string Designer() {
    static const std::string kLines[] = {"   Caption         =   \"a\"\"b\"\r\n",
                                         "   BeginProperty Font \r\n",
                                         "   EndProperty\r\n",
                                         "   Begin VB.Label L \r\n",
                                         "   End\r\n",
                                         "\r\n",
                                         "      Size = 8,25\n",
                                         "   Icon            =   \"F.frx\":0000\r\n",
                                         ">>>>>>> r2\r\n",
                                         "Object = \"x\"; \"y\"\r\n"};
    std::string text = "VERSION 5.00\r\nBegin VB.Form F \r\n";
    for (size_t i = Below(12); i > 0; --i) text += kLines[Below(std::size(kLines))];
    return text + (Below(5) ? "End\r\nAttribute VB_Name = \"F\"\r\n" : "");
  }

 private:
  std::mt19937 random_;
};

TEST(Identity, HoldsForModulesOfAwkwardPieces) {
  for (unsigned seed = 0; seed < 3000; ++seed) {
    Pieces pieces(seed);
    std::string bytes = (seed % 2 ? pieces.Designer() : "") + pieces.Code(pieces.Below(12));
    ASSERT_EQ(ModuleText(bytes, ReadModuleHead(bytes).code_start).Write(), bytes) << "seed " << seed;
  }
}

// All lines of the file, the hidden ones too, with their line ends.
std::vector<std::string> FileLines(const std::string& bytes) {
  std::vector<std::string> lines;
  for (size_t from = 0; from < bytes.size();) {
    size_t next = std::min(bytes.find('\n', from), bytes.size() - 1) + 1;
    lines.push_back(bytes.substr(from, next - from));
    from = next;
  }
  return lines;
}

// Without Attribute lines a change of lines in the code is the same change of lines in the file.
TEST(Identity, AnEditChangesItsLinesAlone) {
  for (unsigned seed = 0; seed < 2000; ++seed) {
    Pieces pieces(seed);
    std::string code;
    for (size_t i = pieces.Below(9) + 1; i > 0; --i) {
      std::string line = pieces.Line();
      if (line.find("Attribute") == std::string::npos) code += line + "\n";
    }
    if (code.empty()) continue;
    ModuleText text(code, 0);
    std::vector<std::string> expected = FileLines(code);
    for (int edit = 0; edit < 5; ++edit) {
      size_t start = pieces.Below(expected.size() + 1), count = pieces.Below(expected.size() - start + 1);
      std::vector<std::string> added;
      for (size_t i = pieces.Below(4); i > 0; --i) added.push_back("new " + std::to_string(i));
      text.Replace(static_cast<long>(start) + 1, static_cast<long>(count), {added.begin(), added.end()});
      auto first = expected.begin() + static_cast<long>(start);
      first = expected.erase(first, first + static_cast<long>(count));
      for (std::string& line : added) line += '\n';
      expected.insert(first, added.begin(), added.end());
      std::string whole;
      for (const std::string& line : expected) whole += line;
      ASSERT_EQ(text.Write(), whole) << "seed " << seed << " edit " << edit;
    }
  }
}

// What is written after any edits, read again, shows the same lines, unless an inserted line reads like an attribute.
TEST(Identity, WhatWasEditedIsReadBackAsItWasShown) {
  for (unsigned seed = 0; seed < 2000; ++seed) {
    Pieces pieces(seed);
    std::string bytes = "Attribute VB_Name = \"M\"\r\nOption Explicit\r\n" + pieces.Code(pieces.Below(12)) + "\r\n";
    ModuleText text(bytes, ReadModuleHead(bytes).code_start);
    for (int edit = 0; edit < 6; ++edit) {
      auto start = static_cast<long>(pieces.Below(static_cast<size_t>(text.Count()))) + 1;
      auto count = static_cast<long>(pieces.Below(2));
      text.Replace(start, std::min(count, text.Count() - start + 1), {"Dim z", "Sub A()"}, edit % 2 == 0);
    }
    std::string written = text.Write();
    ModuleText again(written, ReadModuleHead(written).code_start);
    std::string shown = text.Lines(1, text.Count());
    if (shown.find("Attribute") != std::string::npos) continue;  // was text of a comment that went on
    ASSERT_EQ(again.Lines(1, again.Count()), shown) << "seed " << seed;
    ASSERT_EQ(again.Write(), written) << "seed " << seed;
  }
}

TEST(CheckFiles, FindsEveryFileIdentical) {
  Opened opened;
  opened.files.Put("C:\\P\\g.vbg", Text("VBGROUP 5.0|Project=P.vbp|"));
  opened.PutProject("Type=Exe|Form=F.frm|Module=M; M.bas|RelatedDoc=n.txt|");
  opened.Put("F.frm",
             "VERSION 5.00|Begin VB.Form F |   Begin VB.ListBox l |      List            =   \"F.frx\":0000|   End|End|"
             "Attribute VB_Name = \"F\"|");
  opened.files.Put("C:\\P\\F.frx", std::string("\x01\0\x03\0\x02\0ab", 8));
  opened.Put("M.bas", "Attribute VB_Name = \"M\"|x");
  opened.Put("n.txt", "");
  opened.environment->Open("C:\\P\\g.vbg");
  std::vector<std::string> paths;
  for (const CheckedFile& file : CheckFiles(*opened.environment, opened.files)) {
    EXPECT_TRUE(file.identical) << file.path;
    paths.push_back(file.path);
  }
  EXPECT_EQ(paths,
            (std::vector<std::string>{"C:\\P\\g.vbg", "C:\\P\\P.vbp", "C:\\P\\F.frm", "C:\\P\\F.frx", "C:\\P\\M.bas"}));
  EXPECT_EQ(opened.Problems(), std::vector<std::string>{});
}

TEST(CheckFiles, TellsTheFirstByteThatDiffers) {
  Opened opened;
  opened.PutProject("Type=Exe|Module=M; M.bas|");
  opened.Put("M.bas", "Attribute VB_Name = \"M\"|abc|");
  opened.environment->Open("C:\\P\\P.vbp");
  opened.Code()->ReplaceLine(1, "abd");
  std::vector<CheckedFile> checked = CheckFiles(*opened.environment, opened.files);
  ASSERT_EQ(checked.size(), 2u);
  EXPECT_FALSE(checked[1].identical);
  EXPECT_EQ(checked[1].first_difference, static_cast<long>(std::string("Attribute VB_Name = \"M\"\r\nab").size()));
}

TEST(CheckFiles, ReportsReferencesBeyondTheBinaryFile) {
  Opened opened;
  opened.PutProject("Type=Exe|Form=F.frm|");
  opened.Put("F.frm",
             "VERSION 5.00|Begin VB.Form F |   Icon            =   \"F.frx\":00FF|End|Attribute VB_Name = \"F\"|");
  opened.files.Put("C:\\P\\F.frx", "short");
  opened.environment->Open("C:\\P\\P.vbp");
  EXPECT_EQ(opened.Problems(), std::vector<std::string>{});
  CheckFiles(*opened.environment, opened.files);
  CheckFiles(*opened.environment, opened.files);
  EXPECT_EQ(opened.Problems(), std::vector<std::string>{"C:\\P\\F.frm:3: Icon: beyond the end of F.frx"});
}

}  // namespace
}  // namespace corvane::environment
