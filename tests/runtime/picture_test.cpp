#include "runtime/picture.h"

#include <gtest/gtest.h>

namespace corvane::runtime {
namespace {

TEST(Picture, IsToldByItsFirstBytes) {
  using namespace std::string_view_literals;
  for (std::string_view bytes : {"BM6"sv, "GIF89a"sv, "\x89PNG\r\n"sv, "\xFF\xD8\xFF\xE0"sv, "\0\0\1\0\1"sv,
                                 "\0\0\2\0"sv, "<svg/>"sv, "<?xml version"sv, "\xD7\xCD\xC6\x9A"sv})
    EXPECT_TRUE(IsPicture(bytes)) << bytes;
  for (std::string_view bytes : {""sv, "B"sv, "\0\0\3\0"sv, "text"sv, " BM"sv}) EXPECT_FALSE(IsPicture(bytes)) << bytes;
}

}  // namespace
}  // namespace corvane::runtime
