#include "runtime/dates.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "runtime/error.h"
#include "runtime/strings.h"

namespace corvane::runtime {

namespace {

constexpr const char* kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                                   "July",    "August",   "September", "October", "November", "December"};
constexpr const char* kDays[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
constexpr long kSecondsOfDay = 86400;
constexpr long kEpoch = 693899;  // days from 1 March of year 0 to day 0

bool IsLeap(long year) {
  return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}
int DaysOf(long year, int month) {
  static constexpr int kLengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeap(year) ? 29 : kLengths[month - 1];
}

// Days of the Gregorian calendar from 1 March of year 0; March is the first month of its year.
long DayNumber(long year, int month, int day) {
  if (month < 3) --year;
  const long shifted = (month + 9) % 12;
  return 365 * year + year / 4 - year / 100 + year / 400 + (153 * shifted + 2) / 5 + day - 1;
}

void SetCalendar(DateParts& parts, long number) {
  auto year = static_cast<long>((10000LL * number + 14780) / 3652425);
  long rest = number - (365 * year + year / 4 - year / 100 + year / 400);
  if (rest < 0) {
    --year;
    rest = number - (365 * year + year / 4 - year / 100 + year / 400);
  }
  const long shifted = (100 * rest + 52) / 3060;
  parts.month = static_cast<int>((shifted + 2) % 12 + 1);
  parts.year = year + (shifted + 2) / 12;
  parts.day = static_cast<int>(rest - (153 * shifted + 2) / 5 + 1);
}

}  // namespace

DateParts PartsOf(double date) {
  if (!(date > -657435 && date < 2958466)) throw Error(kInvalidProcedureCall);
  double days = std::trunc(date);
  long seconds = std::lround(std::fabs(date - days) * kSecondsOfDay);
  if (seconds == kSecondsOfDay) {
    seconds = 0;
    ++days;
  }
  DateParts parts;
  const long number = kEpoch + static_cast<long>(days);
  SetCalendar(parts, number);
  parts.hour = static_cast<int>(seconds / 3600);
  parts.minute = static_cast<int>(seconds / 60 % 60);
  parts.second = static_cast<int>(seconds % 60);
  parts.weekday = static_cast<int>(((static_cast<long>(days) - 1) % 7 + 7) % 7) + 1;  // day 1 was a Sunday
  parts.day_of_year = static_cast<int>(number - DayNumber(parts.year, 1, 1)) + 1;
  return parts;
}

double DateOf(const DateParts& parts) {
  if (parts.year < 100 || parts.year > 9999 || parts.month < 1 || parts.month > 12 || parts.day < 1 ||
      parts.day > DaysOf(parts.year, parts.month) || parts.hour < 0 || parts.hour > 23 || parts.minute < 0 ||
      parts.minute > 59 || parts.second < 0 || parts.second > 59)
    throw Error(kTypeMismatch);
  const auto days = static_cast<double>(DayNumber(parts.year, parts.month, parts.day) - kEpoch);
  const double time = (parts.hour * 3600.0 + parts.minute * 60.0 + parts.second) / kSecondsOfDay;
  return days < 0 ? days - time : days + time;
}

namespace {

// The words, numbers and ":" of a text; other separators only part them.
struct DateWords {
  std::vector<std::string> words;
  bool valid = true;
};

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

DateWords Split(std::string_view text) {
  DateWords result;
  for (size_t at = 0; at < text.size();) {
    size_t end = at + 1;
    if (IsDigit(text[at]) || IsLetter(text[at])) {
      while (end < text.size() && (IsDigit(text[at]) ? IsDigit(text[end]) : IsLetter(text[end]))) ++end;
      result.words.push_back(UCase(text.substr(at, end - at)));
    } else if (text[at] == ':') {
      result.words.push_back(":");
    } else if (std::string_view(" /-,.").find(text[at]) == std::string_view::npos) {
      result.valid = false;
    }
    at = end;
  }
  return result;
}

bool IsNumber(const std::string& word) {
  return IsDigit(word[0]) && word.size() <= 4;
}

int MonthNamed(const std::string& word) {
  for (int month = 0; month < 12; ++month) {
    const std::string name = UCase(kMonths[month]);
    if (word == name || (word.size() == 3 && word == name.substr(0, 3))) return month + 1;
  }
  return 0;
}

// Takes "h:mm", "h:mm:ss" and "AM" or "PM" out of the words. False if what stands there is no time.
bool TakeTime(std::vector<std::string>& words, DateParts& parts, bool& found) {
  int half = 0;
  std::vector<int> numbers;
  std::vector<std::string> rest;
  for (size_t i = 0; i < words.size(); ++i) {
    const bool before = i + 1 < words.size() && words[i + 1] == ":", behind = i > 0 && words[i - 1] == ":";
    if (words[i] == "AM" || words[i] == "PM") {
      if (half != 0) return false;
      half = words[i] == "AM" ? 1 : 2;
      if (numbers.empty() && !rest.empty() && IsNumber(rest.back())) {
        numbers.push_back(std::atoi(rest.back().c_str()));
        rest.pop_back();
      }
    } else if (words[i] != ":" && (before || behind)) {
      if (!IsNumber(words[i])) return false;
      numbers.push_back(std::atoi(words[i].c_str()));
    } else if (words[i] != ":") {
      rest.push_back(words[i]);
    }
  }
  words = rest;
  found = !numbers.empty();
  if (!found) return half == 0;
  if (numbers.size() > 3 || (half == 0 && numbers.size() < 2) || (half != 0 && (numbers[0] < 1 || numbers[0] > 12)))
    return false;
  numbers.resize(3);
  parts.hour = half == 0 ? numbers[0] : numbers[0] % 12 + (half == 2 ? 12 : 0);
  parts.minute = numbers[1];
  parts.second = numbers[2];
  return true;
}

long FullYear(const std::string& word) {
  const long year = std::atol(word.c_str());
  return word.size() > 2 ? year : year < 30 ? 2000 + year : 1900 + year;
}

bool TakeDate(const std::vector<std::string>& words, DateParts& parts, long this_year) {
  if (words.size() < 2 || words.size() > 3) return false;
  std::vector<std::string> numbers;
  int named = 0;
  for (const std::string& word : words) {
    if (const int month = MonthNamed(word); month != 0 && named == 0)
      named = month;
    else if (IsNumber(word))
      numbers.push_back(word);
    else
      return false;
  }
  const auto number = [&](size_t i) { return std::atoi(numbers[i].c_str()); };
  parts.year = this_year;
  if (named != 0) {
    parts.month = named;
    const bool year_first = numbers.size() == 2 && numbers[0].size() > 2;
    parts.day = number(year_first ? 1 : 0);
    if (numbers.size() == 2) parts.year = FullYear(numbers[year_first ? 0 : 1]);
    return true;
  }
  const bool year_first = numbers.size() == 3 && numbers[0].size() > 2;
  parts.month = number(year_first ? 1 : 0);
  parts.day = number(year_first ? 2 : 1);
  if (numbers.size() == 3) parts.year = FullYear(numbers[year_first ? 0 : 2]);
  if (parts.month > 12 && parts.day <= 12 && !year_first) std::swap(parts.month, parts.day);
  return true;
}

}  // namespace

std::optional<double> ReadDate(std::string_view text) {
  if (text.size() > 60) return {};
  DateWords split = Split(text);
  if (!split.valid || split.words.empty()) return {};
  DateParts parts;
  bool has_time = false;
  if (!TakeTime(split.words, parts, has_time)) return {};
  if (!(split.words.empty() && has_time) && !TakeDate(split.words, parts, 2000)) return {};
  std::optional<double> date;
  PassOverErrors([&] { date = DateOf(parts); });
  return date;
}

std::string DateText(double date) {
  const DateParts parts = PartsOf(date);
  const bool has_time = parts.hour != 0 || parts.minute != 0 || parts.second != 0;
  const bool has_date = std::trunc(date) != 0;
  std::string text;
  if (has_date || !has_time) text = FormatDate(date, "m/d/yyyy");
  if (has_date && has_time) text += ' ';
  return has_time ? text + FormatDate(date, "h:nn:ss AM/PM") : text;
}

namespace {

struct NamedPicture {
  std::string_view name, picture;
};
constexpr NamedPicture kNamedPictures[] = {
    {"GENERAL DATE", "c"},      {"LONG DATE", "dddd, mmmm dd, yyyy"}, {"MEDIUM DATE", "dd-mmm-yy"},
    {"SHORT DATE", "m/d/yyyy"}, {"LONG TIME", "h:nn:ss AM/PM"},       {"MEDIUM TIME", "hh:nn AM/PM"},
    {"SHORT TIME", "hh:nn"},
};

std::string_view Unnamed(std::string_view picture) {
  const std::string upper = UCase(picture);
  for (const NamedPicture& named : kNamedPictures)
    if (named.name == upper) return named.picture;
  return picture;
}

std::string Digits(long number, size_t width) {
  std::string digits = std::to_string(number);
  return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

std::string Day(const DateParts& parts, size_t width) {
  const std::string name = kDays[parts.weekday - 1];
  if (width <= 2) return Digits(parts.day, width);
  return width == 3   ? name.substr(0, 3)
         : width == 4 ? name
                      : FormatDate(DateOf(parts), width == 5 ? "m/d/yyyy" : "Long Date");
}
std::string Month(const DateParts& parts, size_t width) {
  const std::string name = kMonths[parts.month - 1];
  return width <= 2 ? Digits(parts.month, width) : width == 3 ? name.substr(0, 3) : name;
}
std::string Year(const DateParts& parts, size_t width) {
  if (width == 1) return Digits(parts.day_of_year, 1);
  return width == 2 ? Digits(parts.year % 100, 2) : Digits(parts.year, 4);
}
// The week that holds 1 January is the first; weeks start on Sunday.
std::string Week(const DateParts& parts, size_t width) {
  if (width == 1) return Digits(parts.weekday, 1);
  const int first = ((parts.weekday - parts.day_of_year) % 7 + 7) % 7;  // weekday of 1 January, from 0
  return Digits((parts.day_of_year - 1 + first) / 7 + 1, 1);
}

// Writes one picture from its front.
class DateWriter {
 public:
  DateWriter(double date, std::string_view picture)
      : date_(date), parts_(PartsOf(date)), picture_(picture), upper_(UCase(picture)) {
    halved_ = Holds(upper_, "AM/PM") || Holds(upper_, "A/P");
  }

  std::string Write() {
    while (at_ < picture_.size()) WriteNext();
    return text_;
  }

 private:
  void WriteNext() {
    if (WriteHalf() || WriteLiteral()) return;
    const char c = upper_[at_];
    size_t width = 1;
    while (at_ + width < upper_.size() && upper_[at_ + width] == c) ++width;
    const std::string part = Part(c, width);
    text_ += part.empty() ? std::string(picture_.substr(at_, width)) : part;
    if (!part.empty()) behind_hour_ = c == 'H';
    at_ += width;
  }

  bool WriteHalf() {
    const bool afternoon = parts_.hour >= 12;
    if (upper_.compare(at_, 5, "AM/PM") == 0) {
      text_ += picture_.substr(at_ + (afternoon ? 3 : 0), 2);
      at_ += 5;
    } else if (upper_.compare(at_, 3, "A/P") == 0) {
      text_ += picture_[at_ + (afternoon ? 2 : 0)];
      at_ += 3;
    } else {
      return false;
    }
    return true;
  }

  bool WriteLiteral() {
    if (picture_[at_] == '\\') {
      text_ += picture_.substr(at_ + 1, 1);
      at_ += 2;
    } else if (picture_[at_] == '"') {
      const size_t end = std::min(picture_.find('"', at_ + 1), picture_.size());
      text_ += picture_.substr(at_ + 1, end - at_ - 1);
      at_ = end + 1;
    } else {
      return false;
    }
    return true;
  }

  std::string Part(char c, size_t width) {
    const int hour = halved_ ? (parts_.hour + 11) % 12 + 1 : parts_.hour;
    switch (c) {
      case 'C':
        return DateText(date_);
      case 'D':
        return Day(parts_, width);
      case 'M':  // behind an hour it is the minute
        return behind_hour_ && width <= 2 ? Digits(parts_.minute, width) : Month(parts_, width);
      case 'Y':
        return Year(parts_, width);
      case 'W':
        return Week(parts_, width);
      case 'Q':
        return Digits((parts_.month + 2) / 3, 1);
      case 'H':
        return Digits(hour, std::min<size_t>(width, 2));
      case 'N':
        return Digits(parts_.minute, std::min<size_t>(width, 2));
      case 'S':
        return Digits(parts_.second, std::min<size_t>(width, 2));
      case 'T':
        return width == 5 ? FormatDate(date_, "h:nn:ss AM/PM") : std::string();
      default:
        return {};
    }
  }

  double date_;
  DateParts parts_;
  std::string_view picture_;
  std::string upper_, text_;
  size_t at_ = 0;
  bool halved_ = false, behind_hour_ = false;
};

}  // namespace

std::string FormatDate(double date, std::string_view picture) {
  return DateWriter(date, Unnamed(picture)).Write();
}

bool IsDatePicture(std::string_view picture) {
  bool part = false;
  picture = Unnamed(picture);
  for (size_t at = 0; at < picture.size(); ++at) {
    const char c = picture[at];
    if (c == '\\') {
      ++at;
    } else if (c == '"') {
      at = std::min(picture.find('"', at + 1), picture.size());
    } else if (c == '0' || c == '#') {
      return false;
    } else {
      part = part || std::string_view("cCdDmMyYwWqQhHnNsStT").find(c) != std::string_view::npos;
    }
  }
  return part;
}

}  // namespace corvane::runtime
