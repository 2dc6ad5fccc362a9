#include "runtime/format_value.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <vector>

#include "runtime/dates.h"
#include "runtime/error.h"
#include "runtime/strings.h"
#include "runtime/variant.h"

namespace corvane::runtime {

namespace {

struct NamedPicture {
  std::string_view name, picture;
};
constexpr NamedPicture kNamedPictures[] = {
    {"GENERAL NUMBER", ""},
    {"CURRENCY", "$#,##0.00;($#,##0.00)"},
    {"FIXED", "0.00"},
    {"STANDARD", "#,##0.00"},
    {"PERCENT", "0.00%"},
    {"SCIENTIFIC", "0.00E+00"},
    {"YES/NO", "\"Yes\";\"Yes\";\"No\""},
    {"TRUE/FALSE", "\"True\";\"True\";\"False\""},
    {"ON/OFF", "\"On\";\"On\";\"Off\""},
};

std::string_view Unnamed(std::string_view picture) {
  const std::string upper = UCase(picture);
  for (const NamedPicture& named : kNamedPictures)
    if (named.name == upper) return named.picture;
  return picture;
}

std::optional<double> NumberIn(std::string_view text) {
  std::optional<double> number;
  PassOverErrors([&] { number = ToNumber(std::string(text)); });
  return number;
}

// A place of a picture, or a literal between the places.
struct Piece {
  enum Kind { kZero, kDigit, kPoint, kPercent, kPower, kLiteral } kind;
  std::string text;
};

struct NumberPicture {
  std::vector<Piece> pieces;
  size_t whole = 0, decimals = 0;  // places before and behind the point
  bool grouped = false, percent = false, power = false, point = false;
};

bool IsPlace(const Piece& piece) {
  return piece.kind == Piece::kZero || piece.kind == Piece::kDigit;
}

NumberPicture Read(std::string_view picture) {
  NumberPicture result;
  for (size_t at = 0; at < picture.size(); ++at) {
    const char c = picture[at];
    Piece piece{Piece::kLiteral, std::string(1, c)};
    if (c == '\\') {
      piece.text = picture.substr(++at, 1);
    } else if (c == '"') {
      const size_t end = std::min(picture.find('"', at + 1), picture.size());
      piece.text = picture.substr(at + 1, end - at - 1);
      at = end;
    } else if (c == '0' || c == '#') {
      piece.kind = c == '0' ? Piece::kZero : Piece::kDigit;
      ++(result.point ? result.decimals : result.whole);
    } else if (c == '.' && !result.point) {
      piece.kind = Piece::kPoint;
      result.point = true;
    } else if (c == ',') {
      if (result.whole > 0 && !result.point) result.grouped = true;
      continue;
    } else if (c == '%') {
      piece.kind = Piece::kPercent;
      result.percent = true;
    } else if ((c == 'E' || c == 'e') && at + 1 < picture.size() &&
               (picture[at + 1] == '+' || picture[at + 1] == '-')) {
      const size_t end = std::min(picture.find_first_not_of("0#", at + 2), picture.size());
      piece = {Piece::kPower, std::string(picture.substr(at, end - at))};
      result.power = true;
      at = end - 1;
    }
    result.pieces.push_back(piece);
  }
  return result;
}

std::string PowerText(const std::string& place, int exponent) {
  std::string digits = std::to_string(std::abs(exponent));
  while (digits.size() + 2 < place.size()) digits.insert(0, 1, '0');
  return place.substr(0, 1) + (exponent < 0 ? "-" : place[1] == '+' ? "+" : "") + digits;
}

// Digits before and behind the point, rounded to the picture's places.
struct DigitsOf {
  std::string whole, decimals;
  DigitsOf(double number, size_t places) {
    const std::string text = Format(number, places == 0 ? "0" : "0." + std::string(std::min<size_t>(places, 300), '0'));
    whole = text.substr(0, text.find('.'));
    if (places > 0) decimals = text.substr(text.find('.') + 1);
    if (whole == "0") whole.clear();
  }
};

// Writes a number, without its sign, into the places of a picture.
class NumberWriter {
 public:
  NumberWriter(const NumberPicture& picture, const DigitsOf& digits, int exponent)
      : picture_(picture), digits_(digits), exponent_(exponent) {}

  std::string Write() {
    size_t first_zero = picture_.whole, place = 0;
    for (const Piece& piece : picture_.pieces) {
      if (piece.kind == Piece::kPoint) break;
      if (!IsPlace(piece)) continue;
      if (piece.kind == Piece::kZero && first_zero == picture_.whole) first_zero = place;
      ++place;
    }
    least_ = picture_.whole - first_zero;
    for (const Piece& piece : picture_.pieces) WritePiece(piece);
    return text_;
  }

 private:
  void WritePiece(const Piece& piece) {
    if (piece.kind == Piece::kPoint) {
      behind_point_ = true;
      text_ += '.';
    } else if (piece.kind == Piece::kPower) {
      text_ += PowerText(piece.text, exponent_);
    } else if (!IsPlace(piece)) {
      text_ += piece.text;
    } else if (behind_point_) {
      WriteDecimal(piece.kind == Piece::kZero);
    } else {
      WriteWhole();
    }
  }

  // The first place takes all digits that have no place of their own.
  void WriteWhole() {
    const size_t left = picture_.whole - whole_places_;  // this place and those behind it
    const size_t count = std::max(digits_.whole.size(), least_);
    const size_t upto = left > 1 ? (count >= left ? count - left + 1 : 0) : count;
    for (; written_ < upto; ++written_) {
      const size_t behind = count - written_;  // digits from here to the point
      if (picture_.grouped && written_ > 0 && behind % 3 == 0) text_ += ',';
      text_ += behind > digits_.whole.size() ? '0' : digits_.whole[digits_.whole.size() - behind];
    }
    ++whole_places_;
  }

  void WriteDecimal(bool zero) {
    const size_t at = decimal_places_++;
    if (at >= digits_.decimals.size()) return;
    const bool rest = digits_.decimals.find_first_not_of('0', at) != std::string::npos;
    if (zero || rest || LaterZero(at)) text_ += digits_.decimals[at];
  }

  // Whether a "0" place stands behind the decimal place [at].
  bool LaterZero(size_t at) const {
    bool point = false;
    size_t place = 0;
    for (const Piece& piece : picture_.pieces) {
      if (piece.kind == Piece::kPoint) point = true;
      if (!point || !IsPlace(piece)) continue;
      if (place++ > at && piece.kind == Piece::kZero) return true;
    }
    return false;
  }

  const NumberPicture& picture_;
  const DigitsOf& digits_;
  int exponent_;
  std::string text_;
  size_t least_ = 0, whole_places_ = 0, decimal_places_ = 0, written_ = 0;
  bool behind_point_ = false;
};

std::vector<std::string_view> Sections(std::string_view picture) {
  std::vector<std::string_view> sections;
  size_t from = 0;
  for (size_t at = 0; at < picture.size(); ++at) {
    if (picture[at] == '\\') ++at;
    if (at < picture.size() && picture[at] == '"') at = std::min(picture.find('"', at + 1), picture.size());
    if (at < picture.size() && picture[at] == ';') {
      sections.push_back(picture.substr(from, at - from));
      from = at + 1;
    }
  }
  sections.push_back(picture.substr(std::min(from, picture.size())));
  return sections;
}

std::string FormatNumber(double number, std::string_view whole_picture) {
  const auto sections = Sections(whole_picture);
  const bool own_negative = number < 0 && sections.size() > 1 && !sections[1].empty();
  const bool zero = number == 0 && sections.size() > 2 && !sections[2].empty();
  const NumberPicture picture = Read(sections[own_negative ? 1 : zero ? 2 : 0]);
  double shown = std::fabs(number) * (picture.percent ? 100 : 1);
  int exponent = 0;
  if (picture.power && shown != 0) {
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.*e", static_cast<int>(std::min<size_t>(picture.decimals, 20)), shown);
    exponent = std::atoi(std::string(buffer).substr(std::string(buffer).find('e') + 1).c_str());
    shown /= std::pow(10.0, exponent);
  }
  const DigitsOf digits(shown, picture.decimals);
  const bool nothing = digits.whole.empty() && digits.decimals.find_first_not_of('0') == std::string::npos;
  const bool sign = number < 0 && !own_negative && !(nothing && picture.whole + picture.decimals > 0);
  return (sign ? "-" : "") + NumberWriter(picture, digits, exponent).Write();
}

// "@" is a character or a blank, "&" a character or nothing; they fill from the right, or with "!" from the left.
std::string FormatText(std::string_view value, std::string_view picture) {
  const bool from_left = Holds(picture, "!");
  const std::string text = Holds(picture, "<") ? LCase(value) : Holds(picture, ">") ? UCase(value) : std::string(value);
  size_t places = 0;
  for (char c : picture) places += c == '@' || c == '&';
  if (places == 0) return text;
  size_t missing = places > text.size() ? places - text.size() : 0, at = 0;
  std::string result;
  size_t surplus = text.size() > places ? text.size() - places : 0;  // goes to the first place
  size_t left = places;
  for (char c : picture) {
    if (c == '!' || c == '<' || c == '>') continue;
    if (c != '@' && c != '&') {
      result += c;
      continue;
    }
    if (from_left ? left <= missing : places - left < missing) {
      if (c == '@') result += ' ';
    } else {
      result += text.substr(at, 1 + surplus);
      at += 1 + surplus;
      surplus = 0;
    }
    --left;
  }
  return result;
}

}  // namespace

std::string FormatValue(std::string_view value, std::string_view picture) {
  if (picture.empty()) return std::string(value);
  const auto number = NumberIn(value);
  if (IsDatePicture(picture) && Unnamed(picture) == picture) {
    const auto date = number ? number : ReadDate(value);
    return date ? FormatDate(*date, picture) : std::string(value);
  }
  picture = Unnamed(picture);
  if (picture.find_first_of("@&<>!") != std::string_view::npos) return FormatText(value, picture);
  if (number) return picture.empty() ? CStr(*number) : FormatNumber(*number, picture);
  const auto date = ReadDate(value);
  return date ? FormatNumber(*date, picture) : std::string(value);
}

}  // namespace corvane::runtime
