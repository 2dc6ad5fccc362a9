// Dates as Visual Basic has them: a double that counts days from 30 December 1899, its fraction the time of day.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane::runtime {

struct DateParts {
  long year = 1899;
  int month = 12, day = 30;  // from 1
  int hour = 0, minute = 0, second = 0;
  int weekday = 7;        // from 1, Sunday
  int day_of_year = 364;  // from 1
};

// Years 100 to 9999. Throws Error 5 for a date outside of them, Error 13 for parts that are no date.
DateParts PartsOf(double date);
double DateOf(const DateParts& parts);

// A text as CDate reads it in an English locale: "2/14/2026", "14 Feb 2026", "February 14, 2026", "2026-02-14", each
// with a time of day or without, or the time alone ("15:04", "3:04:05 PM"). Nothing for other texts.
std::optional<double> ReadDate(std::string_view text);

// As CStr writes it: "2/14/2026 3:04:05 PM", without a time at midnight, without a date on day 0.
std::string DateText(double date);

// With a picture of places for days, months, years and times ("dd.mm.yyyy hh:nn"), or the name of one ("Short Date").
std::string FormatDate(double date, std::string_view picture);
// Whether [picture] is one of dates: a name of one, or a picture with a place for a part of a date and none for digits.
bool IsDatePicture(std::string_view picture);

}  // namespace corvane::runtime
