#include "runtime/dates.h"

#include <gtest/gtest.h>

#include "runtime/error.h"
#include "tests/support/processor_time.h"

namespace corvane::runtime {
namespace {

TEST(Dates, CountDaysFromTheEndOf1899) {
  EXPECT_EQ(DateText(1), "12/31/1899");
  EXPECT_EQ(DateText(2), "1/1/1900");
  EXPECT_EQ(ReadDate("1/1/2000"), 36526.0);
  EXPECT_EQ(ReadDate("3/1/2000"), 36586.0);
  EXPECT_EQ(PartsOf(36526).weekday, 7);  // a Saturday
  EXPECT_EQ(PartsOf(36586).day_of_year, 61);
}

TEST(Dates, EveryDayComesBackFromItsParts) {
  for (long day = -657434; day < 2958466; day += 97) {
    EXPECT_EQ(DateOf(PartsOf(static_cast<double>(day))), static_cast<double>(day));
  }
  EXPECT_THROW(PartsOf(2958466), Error);
  EXPECT_THROW(PartsOf(-657435), Error);
}

TEST(Dates, TextsAreReadAsTheEnglishLocaleWritesThem) {
  const struct {
    const char* text;
    const char* read;  // nullptr: no date
  } cases[] = {
      {"2/14/2026", "2/14/2026"},
      {"14/2/2026", "2/14/2026"},
      {"2-14-26", "2/14/2026"},
      {"2/14/75", "2/14/1975"},
      {"2026-02-14", "2/14/2026"},
      {"14 Feb 2026", "2/14/2026"},
      {"February 14, 2026", "2/14/2026"},
      {"2/14/2026 15:04", "2/14/2026 3:04:00 PM"},
      {"2/14/2026 3:04:05 PM", "2/14/2026 3:04:05 PM"},
      {"12:00 AM", "12/30/1899"},
      {"15:04:05", "3:04:05 PM"},
      {"3 pm", "3:00:00 PM"},
      {"2/30/2026", nullptr},
      {"abc", nullptr},
      {"", nullptr},
      {"5", nullptr},
      {"1.5", "1/5/2000"},
      {"25:00", nullptr},
      {"13:00 PM", nullptr},
      {"1:2:3:4", nullptr},
      {"2/14/2026x", nullptr},
      {"AM", nullptr},
      {"3:", nullptr},
  };
  for (const auto& c : cases) {
    const auto date = ReadDate(c.text);
    EXPECT_EQ(date ? DateText(*date) : "none", c.read ? c.read : "none") << c.text;
  }
}

TEST(Dates, PicturesNameTheParts) {
  const double date = *ReadDate("2/4/2026 15:07:09");
  const struct {
    const char* picture;
    const char* text;
  } cases[] = {
      {"dd.mm.yyyy", "04.02.2026"},
      {"d/m/yy", "4/2/26"},
      {"ddd dddd", "Wed Wednesday"},
      {"mmm mmmm", "Feb February"},
      {"hh:nn:ss", "15:07:09"},
      {"hh:mm:ss", "15:07:09"},
      {"h:nn AM/PM", "3:07 PM"},
      {"h a/p", "3 p"},
      {"yyyymmdd", "20260204"},
      {"y q w ww", "35 1 4 6"},
      {"\"day\" d \\d", "day 4 d"},
      {"c", "2/4/2026 3:07:09 PM"},
      {"ddddd ttttt", "2/4/2026 3:07:09 PM"},
      {"Short Date", "2/4/2026"},
      {"long date", "Wednesday, February 04, 2026"},
      {"Medium Date", "04-Feb-26"},
      {"Short Time", "15:07"},
      {"\"open", "open"},
      {"d\\", "4"},
  };
  for (const auto& c : cases) EXPECT_EQ(FormatDate(date, c.picture), c.text) << c.picture;
}

TEST(Dates, APictureOfDigitsIsNone) {
  for (const char* picture : {"dd", "Short Date", "hh:nn", "c"}) EXPECT_TRUE(IsDatePicture(picture)) << picture;
  for (const char* picture : {"0000000", "#,##0.00", "", "\"day\" 0", "\\d", "0 d"})
    EXPECT_FALSE(IsDatePicture(picture)) << picture;
}

TEST(Dates, ALongPictureIsReadInOneWalk) {
  EXPECT_LT(tests::SecondsOf([] { EXPECT_TRUE(IsDatePicture(std::string(100'000, 'a') + "d")); }), 2);
}

}  // namespace
}  // namespace corvane::runtime
