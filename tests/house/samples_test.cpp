// The samples are written as the environment itself writes, and show what tests and docs need them for.
#include <algorithm>
#include <gtest/gtest.h>
#include <regex>

#include "tests/house/tree.h"

namespace corvane::house {
namespace {

const std::vector<std::string> kTexts = {".vbp", ".frm", ".bas", ".cls", ".ctl", ".pag", ".txt"};

std::string AllCode() {
  std::string code;
  for (const auto& path : FilesBelow("samples/stockroom", {".frm", ".bas", ".cls", ".ctl", ".pag"}))
    code += ReadText(path);
  return code;
}

TEST(Samples, TheStockroomEndsItsLinesWithCrLf) {
  for (const auto& path : FilesBelow("samples/stockroom", kTexts)) {
    const std::string text = ReadText(path);
    EXPECT_TRUE(text.ends_with("\r\n")) << path;
    for (size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1))
      ASSERT_EQ(text[at - 1], '\r') << path << " at byte " << at;
  }
}

TEST(Samples, TheStockroomWritesDesignerPartsAsTheEnvironmentDoes) {
  static const std::regex kBegin(R"(^ *(Begin|BeginProperty) .*[^ \r]\r?$)");
  static const std::regex kProperty(R"(^( *)([\w.()]+) *= {3}\S.*\r?$)");
  for (const auto& path : FilesBelow("samples/stockroom", {".frm", ".ctl", ".pag"})) {
    int number = 0;
    for (const auto& line : Lines(ReadText(path))) {
      ++number;
      if (line.starts_with("Attribute ")) break;
      EXPECT_FALSE(std::regex_match(line, kBegin)) << path << ":" << number << ": no blank at the end";
      std::smatch parts;
      if (!std::regex_match(line, parts, kProperty)) continue;
      EXPECT_EQ(parts[1].length() % 3, 0) << path << ":" << number;
      EXPECT_EQ(line.find('='), parts[1].length() + std::max<size_t>(16, parts[2].length())) << path << ":" << number;
    }
  }
}

TEST(Samples, TheStockroomHasEveryKindOfComponentInUse) {
  const std::string project = ReadText("samples/stockroom/Stockroom.vbp");
  for (const char* key : {"Form=", "Module=", "Class=", "UserControl=", "PropertyPage=", "RelatedDoc="})
    EXPECT_NE(project.find(std::string("\n") + key), std::string::npos) << key;
  EXPECT_GE(FilesBelow("samples/stockroom", {".frm", ".bas", ".cls", ".ctl", ".pag"}).size(), 14u);
  const std::string code = AllCode();
  for (const char* part :
       {"Begin VB.MDIForm", "Begin VB.Menu", "\n      Index  ", ".frx\":0000", "Begin Stockroom.BinMap"})
    EXPECT_NE(code.find(part), std::string::npos) << part;
}

TEST(Samples, TheStockroomUsesEveryBlockOfTheLanguage) {
  const std::string code = AllCode();
  const char* const patterns[] = {
      R"(\n\s*For \w+ = )",
      R"(\n\s*For Each )",
      R"(\n\s*Do While )",
      R"(\n\s*Do Until )",
      R"(\n\s*Loop Until )",
      R"(\n\s*Loop While )",
      R"(\n\s*While )",
      R"(\n\s*Wend)",
      R"(\n\s*With )",
      R"(\n\s*Select Case )",
      R"(\n\s*ElseIf )",
      R"(\n\s*Case Else)",
      R"(Then \w+.* Else )",
      R"(\n[\d\s]*GoSub )",
      R"(\n\d+ )",
      R"(On Error Resume Next)",
      R"(On Error GoTo \w+)",
      R"(\n#If )",
      R"(#ElseIf )",
      R"(#Const )",
      R"( _\r\n)",
      R"(\n\s*' .* _\r\n)",
      R"(\nRem )",
      R"(\nPublic Event )",
      R"(WithEvents )",
      R"(\nImplements )",
      R"(Declare Function )",
      R"(\nPrivate Type )",
      R"(\nPublic Enum )",
      R"(Static Sub )",
      R"(\nFriend )",
      R"(Property Get )",
      R"(Property Let )",
      R"(Property Set )",
      R"(VB_UserMemId = )",
      R"(VB_Description = )",
      R"(VB_VarHelpID = )",
      R"("[^"\r]*'[^"\r]*")",
  };
  for (const char* pattern : patterns) EXPECT_TRUE(std::regex_search(code, std::regex(pattern))) << pattern;
}

TEST(Samples, EachAwkwardProjectHasALineInTheTable) {
  const std::string table = ReadText("samples/awkward/README.md");
  for (const auto& folder : Folders("samples/awkward"))
    EXPECT_NE(table.find("| `" + folder + "` |"), std::string::npos) << folder;
}

}  // namespace
}  // namespace corvane::house
