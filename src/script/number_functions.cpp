// The functions of numbers, truths, dates and arrays.
#include <cmath>

#include "runtime/dates.h"
#include "runtime/error.h"
#include "runtime/strings.h"
#include "script/function_table.h"
#include "script/numbers.h"

namespace corvane::script {

namespace {

using Argument = const std::string&;
using runtime::CStr;

runtime::DateParts DateOf(Argument text) {
  if (const auto date = runtime::ReadDate(text)) return runtime::PartsOf(*date);
  return runtime::PartsOf(DoubleOf(text));
}

std::string Root(FunctionUse&, Argument text) {
  const double number = DoubleOf(text);
  if (number < 0) throw runtime::Error(runtime::kInvalidProcedureCall);
  return TextOfNumber(std::sqrt(number));
}

constexpr FunctionRow kRows[] = {
    {.key = "STEP(",
     .arguments = "value",
     .help = "The value; FOR uses it for its step.",
     .one = [](FunctionUse&, Argument value) { return value; }},
    {.key = "DAY(",
     .arguments = "date",
     .help = "Day of the month.",
     .one = [](FunctionUse&, Argument date) { return CStr(DateOf(date).day); }},
    {.key = "MONTH(",
     .arguments = "date",
     .help = "Month, from 1.",
     .one = [](FunctionUse&, Argument date) { return CStr(DateOf(date).month); }},
    {.key = "YEAR(",
     .arguments = "date",
     .help = "Year, with all its digits.",
     .one = [](FunctionUse&, Argument date) { return CStr(DateOf(date).year); }},
    {.key = "ISDATE(",
     .arguments = "text",
     .help = "Whether the text is a date or a time.",
     .one = [](FunctionUse&, Argument text) { return BooleanText(runtime::ReadDate(text).has_value()); }},
    {.key = "ISNUMERIC(",
     .arguments = "text",
     .help = "Whether the text is a number.",
     .one = [](FunctionUse&, Argument text) { return BooleanText(IsNumeric(text)); }},
    {.key = "NOW(",
     .arguments = "",
     .help = "Date and time.",
     .one = [](FunctionUse& use, Argument) { return runtime::DateText(use.outside.clock.Now()); }},
    {.key = "ABS(",
     .arguments = "number",
     .help = "The number without its sign.",
     .one = [](FunctionUse&, Argument number) { return TextOfNumber(std::fabs(DoubleOf(number))); }},
    {.key = "INT(",
     .arguments = "number",
     .help = "The whole number at or below it.",
     .one = [](FunctionUse&, Argument number) { return CStr(std::floor(DoubleOf(number))); }},
    {.key = "FIX(",
     .arguments = "number",
     .help = "The number without its fraction.",
     .one = [](FunctionUse&, Argument number) { return CStr(std::trunc(DoubleOf(number))); }},
    {.key = "SQR(", .arguments = "number", .help = "Square root.", .one = Root},
    {.key = "ERASE(", .arguments = "array", .help = "Empties the array.", .names_array = true},
    {.key = "UBOUND(",
     .arguments = "array",
     .help = "The highest index; -1 for an array that holds nothing.",
     .names_array = true},
    {.key = "NOT(",
     .arguments = "value",
     .help = "The opposite of a truth.",
     .one =
         [](FunctionUse& use, Argument value) {
           use.state.notFlag = !use.state.notFlag;
           return value;
         }},
};

}  // namespace

std::span<const FunctionRow> NumberFunctions() {
  return kRows;
}

}  // namespace corvane::script
