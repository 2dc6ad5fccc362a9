// The functions of texts.
#include "runtime/collate.h"
#include "runtime/error.h"
#include "runtime/find_text.h"
#include "runtime/format_value.h"
#include "runtime/strings.h"
#include "script/function_table.h"
#include "script/limits.h"
#include "script/numbers.h"
#include "script/oem_text.h"
#include "script/sort_lines.h"
#include "script/vb_strings.h"

namespace corvane::script {

namespace {

using Argument = const std::string&;
using runtime::CStr;
using runtime::FindFirst;

std::string Position(long position) {
  return std::to_string(position);
}

void CheckLength(size_t length) {
  if (length > kLongestText) throw TooLong();
}

std::string Spaces(FunctionUse&, Argument count) {
  const long length = LongOf(count);
  if (length > 0) CheckLength(static_cast<size_t>(length));
  return runtime::Space(length);
}

// The result is reckoned first: it may be as long as the text times [to].
std::string ReplaceAll(FunctionUse&, Argument text, Argument from, Argument to) {
  if (!from.empty() && to.size() > from.size()) {
    size_t length = text.size();
    for (size_t at = FindFirst(text, from); at != std::string::npos; at = FindFirst(text, from, at + from.size()))
      CheckLength(length += to.size() - from.size());
  }
  return runtime::Replace(text, from, to);
}

std::string CompareTexts(Argument left, Argument right, bool with_case) {
  const int order = with_case ? left.compare(right) : runtime::CompareAsListed(left, right);
  return std::to_string(order < 0 ? -1 : order > 0 ? 1 : 0);
}

std::string CompareInMode(FunctionUse&, Argument left, Argument right, Argument mode) {
  const long number = LongOf(mode);
  if (number != 0 && number != 1) throw runtime::Error(runtime::kInvalidProcedureCall);
  return CompareTexts(left, right, number == 0);
}

std::string CommentLines(FunctionUse&, Argument text) {
  std::string result;
  for (size_t from = 0; from < text.size();) {
    const size_t end = std::min(text.find(runtime::kCrLf, from), text.size());
    result.append("'").append(text, from, end - from).append(runtime::kCrLf);
    from = end + 2;
  }
  return result;
}

std::string VariableNamed(FunctionUse& use, Argument name) {
  std::string token = name;
  return use.primary.EvalPrimary(token);
}

constexpr FunctionRow kRows[] = {
    {.key = "MID(",
     .arguments = "text, start, [length]",
     .help = "Part of a text; without a length, to its end.",
     .two = [](FunctionUse&, Argument text, Argument start) { return runtime::Mid(text, LongOf(start)); },
     .three = [](FunctionUse&, Argument text, Argument start,
                 Argument length) { return runtime::Mid(text, LongOf(start), LongOf(length)); },
     .quiet_alone = true},
    {.key = "LEN(",
     .arguments = "text",
     .help = "Number of characters.",
     .one = [](FunctionUse&, Argument text) { return Position(runtime::Len(text)); }},
    {.key = "TRIM(",
     .arguments = "text",
     .help = "The text without blanks at both ends.",
     .one = [](FunctionUse&, Argument text) { return runtime::Trim(text); }},
    {.key = "UCASE(",
     .arguments = "text",
     .help = "The text in upper case.",
     .one = [](FunctionUse&, Argument text) { return runtime::UCase(text); }},
    {.key = "RTRIM(",
     .arguments = "text",
     .help = "The text without blanks at its end.",
     .one = [](FunctionUse&, Argument text) { return runtime::RTrim(text); }},
    {.key = "LTRIM(",
     .arguments = "text",
     .help = "The text without blanks at its start.",
     .one = [](FunctionUse&, Argument text) { return runtime::LTrim(text); }},
    {.key = "RIGHT(",
     .arguments = "text, count",
     .help = "The last characters.",
     .two = [](FunctionUse&, Argument text, Argument count) { return runtime::Right(text, LongOf(count)); }},
    {.key = "LEFT(",
     .arguments = "text, count",
     .help = "The first characters.",
     .two = [](FunctionUse&, Argument text, Argument count) { return runtime::Left(text, LongOf(count)); }},
    {.key = "INSTRREV(",
     .arguments = "text, search, [start]",
     .help = "Place of the last occurrence that ends at or before start, or in the whole text; 0 if there is none.",
     .two = [](FunctionUse&, Argument text, Argument search) { return Position(runtime::InStrRev(text, search)); },
     .three = [](FunctionUse&, Argument text, Argument search,
                 Argument start) { return Position(runtime::InStrRev(text, search, LongOf(start))); }},
    {.key = "INSTR(",
     .arguments = "[start], text, search",
     .help = "Place of the first occurrence, upper and lower case told apart; 0 if there is none.",
     .two = [](FunctionUse&, Argument text, Argument search) { return Position(runtime::InStr(text, search)); },
     .three = [](FunctionUse&, Argument start, Argument text,
                 Argument search) { return Position(runtime::InStr(LongOf(start), text, search)); }},
    {.key = "CHR(",
     .arguments = "code",
     .help = "The character of a code from 0 to 255.",
     .one = [](FunctionUse&, Argument code) { return runtime::Chr(LongOf(code)); }},
    {.key = "ASC(",
     .arguments = "text",
     .help = "Code of the first character.",
     .one = [](FunctionUse&, Argument text) { return Position(runtime::Asc(text)); }},
    {.key = "VAR(", .arguments = "name", .help = "Value of the variable of that name.", .one = VariableNamed},
    {.key = "REPLACE(",
     .arguments = "text, from, to",
     .help = "The text with all occurrences replaced.",
     .three = ReplaceAll},
    {.key = "STRCOMP(",
     .arguments = "a, b, [mode]",
     .help = "-1, 0 or 1 as a comes before b, is b, or comes behind it; mode 1 takes no account of case.",
     .two = [](FunctionUse&, Argument left, Argument right) { return CompareTexts(left, right, true); },
     .three = CompareInMode},
    {.key = "SPACE(", .arguments = "count", .help = "That many blanks.", .one = Spaces},
    {.key = "CSTR(",
     .arguments = "value",
     .help = "The value as text.",
     .one = [](FunctionUse&, Argument value) { return value; }},
    {.key = "CLST(",
     .arguments = "text",
     .help = "The lines of a text as a list: each line end becomes \"|\".",
     .one = [](FunctionUse&, Argument text) { return runtime::Replace(text, runtime::kCrLf, "|"); }},
    {.key = "OEMTOCHAR(",
     .arguments = "text",
     .help = "A text of the system's OEM code page.",
     .one = [](FunctionUse&, Argument text) { return OemToChar(text); }},
    {.key = "SORT(",
     .arguments = "text, [key], [order]",
     .help = "The lines in order, of the word behind key if it is given; an order that starts with DES is descending.",
     .one = [](FunctionUse& use, Argument text) { return SortLines(use.outside.workshop, text, "", ""); },
     .two = [](FunctionUse& use, Argument text,
               Argument key) { return SortLines(use.outside.workshop, text, key, ""); },
     .three = [](FunctionUse& use, Argument text, Argument key,
                 Argument order) { return SortLines(use.outside.workshop, text, key, order); }},
    {.key = "FORMAT(",
     .arguments = "value, picture",
     .help = "A number, date or text as a picture shows it.",
     .two = [](FunctionUse&, Argument value, Argument picture) { return runtime::FormatValue(value, picture); }},
    {.key = "VBSQL(",
     .arguments = "text",
     .help = "Source of a string expression whose :names become values of the SQL text.",
     .one = [](FunctionUse&, Argument text) { return VBSTR(text, true); }},
    {.key = "VBSTR(",
     .arguments = "text",
     .help = "Source of a string expression with that text.",
     .one = [](FunctionUse&, Argument text) { return VBSTR(text, false); }},
    {.key = "UNVBSTR(",
     .arguments = "source",
     .help = "The text of a string expression.",
     .one = [](FunctionUse&, Argument text) { return UNVBSTR(text); }},
    {.key = "COMMENT(", .arguments = "text", .help = "Each line behind an apostrophe.", .one = CommentLines},
};

}  // namespace

std::span<const FunctionRow> TextFunctions() {
  return kRows;
}

}  // namespace corvane::script
