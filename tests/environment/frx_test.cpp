#include "environment/frx.h"

#include <gtest/gtest.h>
#include <random>

#include "runtime/error.h"

namespace corvane::environment::frx {
namespace {

using namespace std::string_literals;
using Items = std::vector<std::string>;

TEST(Frx, APictureIsItsImageFile) {
  const std::string record = "\x0B\0\0\0lt\0\0\x03\0\0\0BMx"s;
  EXPECT_EQ(PictureRecord("BMx"), record);
  EXPECT_EQ(ReadPicture("??" + record + "??", 2), "BMx");
  EXPECT_EQ(ReadPicture("\x08\0\0\0lt\0\0\0\0\0\0"s, 0), "");
}

TEST(Frx, APictureOfAnotherLibraryHasItsClassInFront) {
  const std::string clsid = "\x04\x52\xE3\x0B\x91\x8F\xCE\x11\x9D\xE3\0\xAA\0\x4B\xB8\x51"s;
  EXPECT_EQ(ReadPicture("\x1A\0\0\0"s + clsid + "lt\0\0\x02\0\0\0GI"s, 0), "GI");
}

TEST(Frx, AListSaysItsLongestItemButAtLeastThree) {
  EXPECT_EQ(ListRecord({"one", "fourteen"}), "\x02\0\x08\0\x03\0one\x08\0fourteen"s);
  EXPECT_EQ(ListRecord({"a"}), "\x01\0\x03\0\x01\0"s + "a");
  EXPECT_EQ(ListRecord({}), "\0\0"s);
  EXPECT_EQ(ReadList("\x02\0\x08\0\x03\0one\x08\0fourteen"s, 0), (Items{"one", "fourteen"}));
  EXPECT_EQ(ReadList("\0\0"s, 0), Items{});
}

TEST(Frx, ATextFrom255BytesOnSaysItsLengthInAWord) {
  EXPECT_EQ(TextRecord("ab"), "\x02"s + "ab");
  const std::string long_text(255, 'x');
  EXPECT_EQ(TextRecord(long_text), "\xFF\xFF\0"s + long_text);
  EXPECT_EQ(ReadText("\xFF\xFF\0"s + long_text, 0), long_text);
  EXPECT_EQ(ReadText("\xFF\x03\0"s + "ab", 0), "ab") << "one byte less than stated, at the end of the file";
  EXPECT_EQ(LongTextRecord("ab"), "\x02\0\0\0ab"s);
  EXPECT_EQ(ReadLongText("\x02\0\0\0ab"s, 0), "ab");
}

TEST(Frx, ARecordThatIsNotThereIsNothing) {
  for (const std::string& file : {""s, "\x05"s, "\x02\0"s, "\x02\0\x03\0\x09\0ab"s, "\x0B\0\0\0lx\0\0\x03\0\0\0BMx"s}) {
    EXPECT_EQ(ReadPicture(file, 0), std::nullopt);
    EXPECT_EQ(ReadList(file, 0), std::nullopt);
    EXPECT_EQ(ReadText(file, file.size()), std::nullopt);
    EXPECT_EQ(ReadText(file, 1u << 30), std::nullopt);
  }
}

TEST(Frx, ALongTextBeyondTheEndIsNothing) {
  EXPECT_EQ(ReadLongText("\x03\0\0\0ab"s, 0), std::nullopt);
  EXPECT_EQ(ReadLongText("\xFF\xFF\xFF\xFF"
                         "ab",
                         0),
            std::nullopt);
  EXPECT_EQ(ReadLongText("\x03\0"s, 0), std::nullopt);
}

TEST(Frx, WhatNoRecordHoldsIsRefused) {
  EXPECT_THROW(ListRecord(Items(65536, "")), runtime::Error);
  EXPECT_THROW(ListRecord({std::string(65536, 'x')}), runtime::Error);
  EXPECT_THROW(TextRecord(std::string(65536, 'x')), runtime::Error);
}

TEST(Frx, WhatIsWrittenIsReadBackAmongOtherBytes) {
  std::mt19937 random(7);
  for (int round = 0; round < 500; ++round) {
    const auto text = [&](size_t most) {
      std::string bytes(random() % most, ' ');
      for (char& c : bytes) c = static_cast<char>(random());
      return bytes;
    };
    const std::string before = text(40), after = text(40), bytes = text(600);
    Items items;
    for (size_t i = random() % 6; i > 0; --i) items.push_back(text(30));
    EXPECT_EQ(ReadPicture(before + PictureRecord(bytes) + after, before.size()), bytes);
    EXPECT_EQ(ReadLongText(before + LongTextRecord(bytes) + after, before.size()), bytes);
    EXPECT_EQ(ReadList(before + ListRecord(items) + after, before.size()), items);
    // A text that ends the file may be read one byte short of what it says; more bytes behind it settle it.
    EXPECT_EQ(ReadText(before + TextRecord(bytes) + after, before.size()), bytes);
  }
}

}  // namespace
}  // namespace corvane::environment::frx
