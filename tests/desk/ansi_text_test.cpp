#include "desk/ansi_text.h"

#include <gtest/gtest.h>

#include "runtime/code_page.h"

namespace corvane::desk {
namespace {

struct InCodePage {
  explicit InCodePage(int number) { runtime::SetAnsiCodePage(number); }
  ~InCodePage() { runtime::SetAnsiCodePage(1252); }
};

TEST(AnsiText, EveryByteComesBackFromWhatIsShown) {
  for (const int page : {1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258, 874}) {
    InCodePage in(page);
    for (int byte = 0; byte < 256; ++byte) {
      const std::string text = {'a', static_cast<char>(byte), 'b'};
      EXPECT_EQ(ToBytes(ToShown(text)), text) << page << ": " << byte;
    }
  }
}

TEST(AnsiText, EveryPairOfBytesComesBackInADoubleBytePage) {
  for (const int page : {932, 936, 949, 950}) {
    InCodePage in(page);
    for (int lead = 0x80; lead < 256; ++lead)
      for (int trail = 0x20; trail < 256; trail += 3) {
        const std::string text = {static_cast<char>(lead), static_cast<char>(trail), ' '};
        ASSERT_EQ(ToBytes(ToShown(text)), text) << page << ": " << lead << ' ' << trail;
      }
  }
}

TEST(AnsiText, ControlCharactersAreOneVisibleCharacterEachAndATabStays) {
  EXPECT_EQ(ToShown("a\r\tb"), QString::fromUtf8("a␍\tb"));
  EXPECT_EQ(ToShown(std::string_view("\0\f", 2)), QString::fromUtf8("␀␌"));
}

TEST(AnsiText, ACharacterOutsideTheCodePageIsToldNotReplaced) {
  EXPECT_EQ(ToBytes(QString::fromUtf8("Ж")), std::nullopt);
  EXPECT_FALSE(IsInCodePage(QString::fromUtf8("price in Ж")));
  EXPECT_TRUE(IsInCodePage(QString::fromUtf8("prix en €\n")));
  InCodePage in(1251);
  EXPECT_EQ(ToBytes(QString::fromUtf8("Ж")), "\xC6");
}

TEST(AnsiText, ThePictureOfAControlCharacterCannotBeTyped) {
  EXPECT_FALSE(IsInCodePage(QString::fromUtf8("␍")));
}

}  // namespace
}  // namespace corvane::desk
