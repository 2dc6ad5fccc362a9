#include "script/flat_items.h"

#include <gtest/gtest.h>

namespace corvane::script {
namespace {

TEST(FormatField2, FillsToTwoCharacters) {
  const std::pair<long, const char*> cases[] = {{0, "00"}, {7, "07"}, {12, "12"}, {-1, "-1"}, {100, "100"}};
  for (const auto& [number, field] : cases) EXPECT_EQ(FormatField2(number), field);
}

TEST(FlatItems, AStatementCarriesItsColumnsAndLength) {
  std::string flat;
  AppendStatement(flat, -1, 2, "a(1)=2:");
  EXPECT_EQ(flat, "-102007a(1)=2:");
  AppendLabel(flat, "_I1");
  EXPECT_EQ(flat, "-102007a(1)=2:\1_I1:");
}

TEST(FlatItems, AreReadBack) {
  const FlatItem item = ReadFlatItem("-102007a(1)=2:0000005ELSE:");
  EXPECT_EQ(item.kind, FlatItem::kStatement);
  EXPECT_EQ(item.eq, -1);
  EXPECT_EQ(item.paren, 2);
  EXPECT_EQ(item.text, "a(1)=2:");
  EXPECT_EQ(item.size, 14u);
}

TEST(FlatItems, ALabelGoesToItsColon) {
  const FlatItem item = ReadFlatItem("\1_I1:0000005ELSE:");
  EXPECT_EQ(item.kind, FlatItem::kLabel);
  EXPECT_EQ(item.text, "_I1:");
  EXPECT_EQ(item.size, 5u);
  EXPECT_EQ(ReadFlatItem("\1_I1").kind, FlatItem::kOpenLabel);
}

TEST(FlatItems, ALengthThatIsNoNumberCannotBeRead) {
  for (const char* flat : {"0000", "00000", "00002x=1:", "0000abcx", "0000-10x", "x"}) {
    EXPECT_EQ(ReadFlatItem(flat).kind, FlatItem::kBroken) << flat;
    EXPECT_EQ(ReadFlatItem(flat).size, 0u) << flat;
  }
}

TEST(FlatItems, AColumnThatIsNoNumberIsSaid) {
  const FlatItem item = ReadFlatItem("x10y004x=1:");
  EXPECT_FALSE(item.eq.has_value());
  EXPECT_FALSE(item.paren.has_value());
  EXPECT_EQ(item.text, "x=1:");
}

TEST(FlatItems, ATextThatIsCutIsWhatIsThere) {
  const FlatItem item = ReadFlatItem("0200060x=1:");
  EXPECT_EQ(item.text, "x=1:");
  EXPECT_EQ(item.size, 11u);
}

TEST(FlatItems, AStatementPastTheWidthsBreaksTheProgram) {
  std::string flat;
  AppendStatement(flat, 100, 0, std::string(99, 'x') + "=1:");
  EXPECT_EQ(flat.substr(0, 8), "10000102");
  EXPECT_EQ(ReadFlatItem(flat).text, "2" + std::string(9, 'x'));
}

TEST(FlatItems, SeparatorsBetweenThemAreSkipped) {
  EXPECT_EQ(WithoutSeparators(":: :x:"), "x:");
  EXPECT_EQ(WithoutSeparators("::"), "");
}

}  // namespace
}  // namespace corvane::script
