// The flat program: one text of labels and of statements with a header in front, item behind item.
//
//   statement   eq (2), paren (2), length (3 digits), text, which ends in ":"
//   label       labelMark, name, ":"
//
// eq is the column of the assignment's "=", "00" when nothing decided, "-1" when an operator came before any "=";
// paren is the column of the first "(", "00" if none. The fields are read by their width, and nothing checks that they
// keep to it: a column past 99 or a text of more than 999 characters breaks the program.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane::script {

// In decimal, a "0" in front when that has fewer than two characters: "07", "-1", "123".
std::string FormatField2(long number);
// At least three digits.
std::string FormatField3(size_t number);

void AppendStatement(std::string& flat, long eq, long paren, std::string_view text);
// [name] without mark and ":".
void AppendLabel(std::string& flat, std::string_view name);

struct FlatItem {
  enum Kind {
    kStatement,
    kLabel,
    kOpenLabel,  // a label without its ":"
    kBroken,     // a header that is cut, or whose length is no number
  };
  Kind kind = kBroken;
  std::optional<long> eq, paren;  // of a statement; none where the field is no number
  std::string_view text;          // the statement's, or the label's without its mark; both end in ":"
  size_t size = 0;                // characters the item takes; 0 if it cannot be read
};

// The item at the front of [flat], which is not empty and begins with no separator.
FlatItem ReadFlatItem(std::string_view flat);
// [flat] without the ":" and blanks at its front.
std::string_view WithoutSeparators(std::string_view flat);

}  // namespace corvane::script
