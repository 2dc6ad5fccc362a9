#include "cli/format_module.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <vector>

#include "cli/headless_list.h"
#include "codelist/formatter.h"
#include "environment/module_head.h"
#include "environment/module_kinds.h"
#include "tests/support/golden.h"

namespace corvane::cli {
namespace {

std::string Format(const std::string& code) {
  return FormatModule(code, 0).bytes;
}

TEST(FormatModule, IndentsByTwoBlanksABlock) {
  EXPECT_EQ(Format("Sub A()\n    If b Then\n c = 1\n        Do\nd = 2\n Loop\n   End If\n  End Sub\n"),
            "Sub A()\nIf b Then\n  c = 1\n  Do\n    d = 2\n  Loop\nEnd If\nEnd Sub\n");
}

TEST(FormatModule, TellsHowManyLinesChange) {
  EXPECT_EQ(FormatModule("Do\nx\n  y\nLoop\n", 0).changed_lines, 1);
  EXPECT_EQ(FormatModule("Do\n  x\nLoop\n", 0).changed_lines, 0);
}

TEST(FormatModule, ChangesNoToken) {
  const std::string code = "do\n  x =  \"a  b\"\t'c\t \n  MSGBOX 1\n  if a then b   \nloop";
  EXPECT_EQ(Format(code), code) << "neither spelling nor blanks inside or behind";
}

TEST(FormatModule, TakesTabsAtTheStartForIndent) {
  EXPECT_EQ(Format("Do\n\tx\n \t y\n\tLoop\n"), "Do\n  x\n  y\nLoop\n");
}

TEST(FormatModule, KeepsLineEndsAndTheLackOfOne) {
  EXPECT_EQ(Format("Do\r\nx\r\nLoop"), "Do\r\n  x\r\nLoop");
  EXPECT_EQ(Format("Do\nx\r\ny\nz\ra\nLoop\r\n"), "Do\n  x\r\n  y\n  z\ra\nLoop\r\n");
  EXPECT_EQ(Format(""), "");
  EXPECT_EQ(Format("\r\n"), "\r\n");
  EXPECT_EQ(Format("\r"), "\r");
}

TEST(FormatModule, LeavesTheHeadAlone) {
  const std::string head = "   Begin VB.Form F\r\n      Do\r\n";
  EXPECT_EQ(FormatModule(head + " Do\r\nx\r\n", head.size()).bytes, head + "Do\r\n  x\r\n");
}

TEST(FormatModule, LeavesCommentsAndEmptyLinesInTheirPlace) {
  const std::string code = "Do\n      'why\n'\n\n   \n\t\n  x\nLoop\n";
  EXPECT_EQ(Format(code), code);
}

TEST(FormatModule, LeavesAContinuedCommentInItsPlace) {
  for (const std::string comment : {"  x 'a _", "'a _", "  Rem a _", "  x: Rem a _", "  10 Rem _"}) {
    const std::string code = "Do\n" + comment + "\n       b Do _\n    If c\n  y\nLoop\n";
    EXPECT_EQ(Format(code), code) << comment;
  }
  EXPECT_EQ(Format("Do\n  x = \"'\" & _\n         y\nLoop\n"), "Do\n  x = \"'\" & _\n  y\nLoop\n")
      << "a string is none";
  EXPECT_EQ(Format("Do\n  remark = _\n         y\nLoop\n"), "Do\n  remark = _\n  y\nLoop\n") << "nor is a name";
}

TEST(FormatModule, LeavesHiddenAttributesAlone) {
  const std::string code = "Sub A()\nAttribute A.VB_Description = \"Do \"\nDo\n  x\nLoop\nEnd Sub\n";
  EXPECT_EQ(Format(code), code);
  EXPECT_EQ(Format("Sub A()\n  Attribute A.VB_Description = 1\n"), "Sub A()\n  Attribute A.VB_Description = 1\n")
      << "nothing becomes one";
}

TEST(FormatModule, EachProcedureBeginsAtTheOutermostLevel) {
  EXPECT_EQ(Format("Sub A()\nIf a Then: b\nc\nEnd Sub\nSub B()\n  d\nEnd Sub\n"),
            "Sub A()\nIf a Then: b\n  c\n  End Sub\nSub B()\nd\nEnd Sub\n")
      << "a block that is not seen to end does not reach the next one";
}

TEST(FormatModule, BehindTheEleventhLevelTheIndentBeginsAgain) {
  std::string code, last;
  for (int level = 0; level < 11; ++level) code += "Do\n";
  const std::string formatted = Format(code + "     x\n");
  EXPECT_TRUE(formatted.ends_with(std::string(20, ' ') + "Do\nx\n")) << formatted;
}

TEST(FormatModule, AClosingKeywordTooManyIsNotNegative) {
  EXPECT_EQ(Format("  Loop\n"), "Loop\n");
}

// The lines without what stands at their starts, line ends included.
std::string WithoutIndents(const std::string& text) {
  std::string bare;
  bool at_start = true;
  for (const char c : text) {
    if (at_start && (c == ' ' || c == '\t')) continue;
    bare += c;
    at_start = c == '\n';
  }
  return bare;
}

void ExpectLaws(const std::string& bytes, size_t code_start) {
  const FormattedModule once = FormatModule(bytes, code_start), twice = FormatModule(once.bytes, code_start);
  EXPECT_EQ(once.bytes.substr(0, code_start), bytes.substr(0, code_start));
  EXPECT_EQ(WithoutIndents(once.bytes.substr(code_start)), WithoutIndents(bytes.substr(code_start)));
  EXPECT_EQ(twice.bytes, once.bytes);
  EXPECT_EQ(twice.changed_lines, 0);
}

TEST(FormatModule, KeepsItsLawsOnEverySample) {
  long files = 0, changed = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(CORVANE_SOURCE_DIR "/samples")) {
    if (!entry.is_regular_file() || !environment::KindOfExtension(entry.path().extension().string())) continue;
    const std::string bytes = *tests::golden::ReadFile(entry.path());
    SCOPED_TRACE(entry.path());
    ExpectLaws(bytes, environment::ReadModuleHead(bytes).code_start);
    changed += FormatModule(bytes, environment::ReadModuleHead(bytes).code_start).changed_lines;
    ++files;
  }
  EXPECT_GT(files, 40);
  EXPECT_GT(changed, 1000) << "the procedures of the samples are indented by four";
}

TEST(FormatModule, KeepsItsLawsOnAnyText) {
  const std::vector<std::string> pieces = {"If ",
                                           "Then",
                                           "Then ",
                                           "Else",
                                           "End If",
                                           "Do ",
                                           "Loop",
                                           "Next",
                                           "For ",
                                           "To ",
                                           "Select Case ",
                                           "'",
                                           "\"",
                                           "/+\\",
                                           "/-\\",
                                           "\x02",
                                           "\x03",
                                           "\x06",
                                           "_",
                                           " _",
                                           " ",
                                           "\t",
                                           "    ",
                                           "\r",
                                           "\n",
                                           "\r\n",
                                           "\r\n",
                                           "\n",
                                           "x = 1",
                                           ":",
                                           "::",
                                           "Rem ",
                                           "10 ",
                                           "L1: ",
                                           "End Sub",
                                           "With ",
                                           "\x81\x5C",
                                           "\xE4",
                                           "\xFF",
                                           "#If ",
                                           "Attribute A.VB_Name = 1",
                                           "Sub A()",
                                           "End Function",
                                           "\xA0",
                                           "While "};
  std::mt19937 random(3);
  for (int round = 0; round < 3000; ++round) {
    std::string text;
    for (auto left = random() % 40; left > 0; --left) text += pieces[random() % pieces.size()];
    SCOPED_TRACE(testing::PrintToString(text));
    ExpectLaws(text, 0);
    if (HasFailure()) return;
  }
}

// What the command of the list tells the window to write, against what the whole module gets.
TEST(FormatModule, IndentsAProcedureAsTheListDoes) {
  const std::string code = *tests::golden::ReadFile(CORVANE_SOURCE_DIR "/samples/stockroom/modCsv.bas");
  const std::string text = WithCrLf(code.substr(environment::ReadModuleHead(code).code_start));
  const std::string formatted = FormatModule(text, 0).bytes;
  HeadlessList list;
  list->sGrid("VB");
  size_t at = 0, compared = 0;
  while (at < formatted.size()) {
    list->SetText(formatted.substr(at));  // it stops behind the end of the procedure
    for (long line = 1; line <= list->ListCount(); ++line) {
      const size_t end = formatted.find("\r\n", at);
      const std::string own = formatted.substr(at, end - at);
      const auto wanted = codelist::FormattedIndent(list->StoredText(line), list->LineLevel(line));
      if (wanted && own.find_first_not_of(' ') != std::string::npos) {
        EXPECT_EQ(own.find_first_not_of(' '), *wanted) << own;
        ++compared;
      }
      at = end + 2;
    }
  }
  EXPECT_GT(compared, 50u);
}

}  // namespace
}  // namespace corvane::cli
