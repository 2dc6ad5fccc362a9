// Visual Basic's string functions on bytes of one ANSI code page. Positions and lengths count from 1.
// Functions that Visual Basic fails throw Error 5.
#pragma once

#include <string>
#include <string_view>

namespace corvane::runtime {

inline constexpr char kCrLf[] = "\r\n";

inline long Len(std::string_view text) {
  return static_cast<long>(text.size());
}

// First place of [find] in [text] at or behind [start]; 0 if there is none. An empty [find] gives [start],
// an empty [text] or a start behind its end 0.
long InStr(long start, std::string_view text, std::string_view find);
inline long InStr(std::string_view text, std::string_view find) {
  return InStr(1, text, find);
}

// Last place of [find] that ends at or before [start] (-1: the end of the text); 0 if there is none.
long InStrRev(std::string_view text, std::string_view find, long start = -1);

// Whether [find] occurs in [text].
inline bool Holds(std::string_view text, std::string_view find) {
  return text.find(find) != std::string_view::npos;
}
inline bool BeginsWith(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

std::string Mid(std::string_view text, long start);
std::string Mid(std::string_view text, long start, long count);
std::string Left(std::string_view text, long count);
std::string Right(std::string_view text, long count);

// Blanks only: a tab or a line end is not trimmed.
std::string LTrim(std::string_view text);
std::string RTrim(std::string_view text);
std::string Trim(std::string_view text);

// Upper and lower case by the ANSI code page in force (see code_page.h); the length never changes.
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);

std::string Space(long count);
std::string String(long count, char character);
std::string Chr(long code);
long Asc(std::string_view text);

std::string Replace(std::string_view text, std::string_view find, std::string_view replacement);

// The longest number at the start of [text], blanks skipped; 0 if there is none. Never fails.
double Val(std::string_view text);

// A number as text, as CStr gives it, with "." as decimal sign: at most 15 digits, trailing zeros dropped.
std::string CStr(double number);
inline std::string CStr(long number) {
  return std::to_string(number);
}
inline std::string CStr(int number) {
  return std::to_string(number);
}

// [number] with a picture of digits: 0 and # places, an optional point, and literals behind ("00#   " gives at
// least three digits, as a # behind a 0 counts as one, and three blanks). See format.cpp for the places understood.
std::string Format(double number, std::string_view picture);

}  // namespace corvane::runtime
