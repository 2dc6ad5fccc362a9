#include "script/flat_to_text.h"

#include <gtest/gtest.h>

#include "tests/script/translated.h"

namespace corvane::script {
namespace {

TEST(FlatToText, GivesEachStatementALine) {
  EXPECT_EQ(FlatToText("0200004x=1:-100008PRINT x:"), "x=1:\r\nPRINT x:\r\n");
}

TEST(FlatToText, HidesGeneratedLabelsAndTheirJumps) {
  EXPECT_EQ(FlatToText(Translated("IF a THEN\nb=1\nEND IF").flat), "IF a THEN:\r\nb=1:\r\nEND IF:\r\n");
  EXPECT_EQ(FlatToText("-100009GOTV _X1:-100009GOTB _X1:-100009GOTF _X1:-100007GO _X1:"), "");
}

TEST(FlatToText, ShowsTheJumpToAnEndIf) {
  EXPECT_EQ(FlatToText(Translated("IF a THEN\nb=1\nELSE\nc=1\nEND IF").flat),
            "IF a THEN:\r\nb=1:\r\nGOTN _I1:\r\nELSE:\r\nc=1:\r\nEND IF:\r\n");
}

TEST(FlatToText, ShowsTheLabelsOfTheScript) {
  EXPECT_EQ(FlatToText(Translated("Again\nx=1\nGOTO again").flat), "AGAIN:\r\nx=1:\r\nGOTO again:\r\n");
}

TEST(FlatToText, SaysThatALabelIsOpen) {
  EXPECT_EQ(FlatToText("0200004x=1:\1_I"), "x=1:\r\n Syntax Error");
}

TEST(FlatToText, EndsAtAHeaderThatIsCut) {
  EXPECT_EQ(FlatToText("0200004x=1:02000"), "x=1:\r\n");
  EXPECT_EQ(FlatToText("0200004x=1:0200004y="), "x=1:\r\ny=\r\n");
}

TEST(FlatToText, OfNothingIsNothing) {
  for (const char* flat : {"", ":", "::", " : ", "x"}) EXPECT_EQ(FlatToText(flat), "") << flat;
}

}  // namespace
}  // namespace corvane::script
