#include "cli/inspect_command.h"

#include <gtest/gtest.h>
#include <sstream>

#include "runtime/code_page.h"

namespace corvane::cli {
namespace {

std::string Inspect(const std::string& bytes, const std::string& mode, int role = 0, int code_page = 1252) {
  std::ostringstream out;
  EXPECT_EQ(InspectLines(bytes, mode, role, code_page, out), 0);
  runtime::SetAnsiCodePage(1252);
  return out.str();
}

TEST(InspectLines, GivesEachStoredLineWithItsLevelAndMarks) {
  EXPECT_EQ(Inspect("If a Then\r\n\"x\"\r\nEnd If\r\n", "vb"),
            R"({"level":33,"text":"\u0002If/+\\ a /-\\\u0002Then/+\\"})"
            "\n"
            R"({"level":34,"text":"\"x\""})"
            "\n"
            R"({"level":34,"text":"/-\\\u0002End If/-\\/+\\"})"
            "\n");
}

TEST(InspectLines, TakesLinesThatEndWithALineFeedAlone) {
  EXPECT_EQ(Inspect("a\nb\r\nc", "text"),
            "{\"level\":33,\"text\":\"a\"}\n{\"level\":33,\"text\":\"b\"}\n"
            "{\"level\":33,\"text\":\"c\"}\n");
}

TEST(InspectLines, StopsBehindAProcedureUnlessAnotherRoleIsGiven) {
  EXPECT_EQ(Inspect("End Sub\r\nx\r\n", "vb"), "{\"level\":33,\"text\":\"End Sub\"}\n");
  EXPECT_EQ(Inspect("End Sub\r\nx\r\n", "vb", 2),
            "{\"level\":33,\"text\":\"End Sub\"}\n{\"level\":33,\"text\":\"x\"}\n");
}

TEST(InspectLines, WritesUtf8ThroughTheCodePage) {
  EXPECT_EQ(Inspect("\xE4", "text"), "{\"level\":33,\"text\":\"\xC3\xA4\"}\n");
  EXPECT_EQ(Inspect("\xE4", "text", 0, 1251), "{\"level\":33,\"text\":\"\xD0\xB4\"}\n");
}

TEST(InspectLines, TheCodePagesOfWindowsAreKnown) {
  for (int page : {874, 932, 936, 949, 950, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258})
    EXPECT_TRUE(IsKnownCodePage(page)) << page;
  for (int page : {0, -1, 437, 1249, 1259, 65001}) EXPECT_FALSE(IsKnownCodePage(page)) << page;
}

std::string Flat(const std::string& bytes) {
  std::ostringstream out;
  EXPECT_EQ(InspectFlat(bytes, 1252, out), 0);
  return out.str();
}

TEST(InspectFlat, GivesTheFlatProgramOfAPiece) {
  EXPECT_EQ(Flat("x=1\r\nIF a THEN\r\nEND IF\r\n"),
            "{\"flat\":\"0200004x=1:0000010IF a THEN:-100007GO _I1:::0000007END IF:\\u0001_I1:::\",\"messages\":[]}\n");
}

TEST(InspectFlat, GoesOnBehindEachError) {
  EXPECT_EQ(Flat("NEXT\nx=f(\ny=2"),
            "{\"flat\":\"0200004y=2:::\",\"messages\":[\"NEXT: without For or While operators\","
            "\"Brackets Error.\"]}\n");
}

TEST(InspectFlat, TakesCommentsOffFurtherLines) {
  EXPECT_EQ(Flat("x=1\n' note\nREM note\ny=2 ' note\n"), "{\"flat\":\"0200004x=1:0200004y=2:::\",\"messages\":[]}\n");
}

TEST(InspectFlat, WritesUtf8ThroughTheCodePage) {
  EXPECT_EQ(Flat("x=\"\xE4\""), "{\"flat\":\"0200006x=\\\"\xC3\xA4\\\":::\",\"messages\":[]}\n");
}

TEST(InspectFlat, AnEmptyFileIsTwoColons) {
  EXPECT_EQ(Flat(""), "{\"flat\":\"::\",\"messages\":[]}\n");
}

TEST(InspectLines, AnEmptyFileHasNoLines) {
  EXPECT_EQ(Inspect("", "vb"), "");
}

}  // namespace
}  // namespace corvane::cli
