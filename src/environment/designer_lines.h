// The lines of a designer part: what each is, where the part ends, how values are read and written.
#pragma once

#include <string>
#include <string_view>

#include "environment/designer_part.h"

namespace corvane::environment {

struct DesignerLine {
  enum Kind { Begin, BeginProperty, End, EndProperty, Property, Blank, Unknown } kind = Unknown;
  std::string_view name;   // of the block or the property
  std::string_view value;  // a block's class or {GUID}; what stands right of a property's "="
};
DesignerLine ClassifyDesignerLine(std::string_view raw);

// Cuts the first line, with its line end, off [rest].
std::string_view CutLine(std::string_view& rest);
// Without blanks and tabs around it, and without its line end.
std::string_view TrimBlanks(std::string_view text);
// [text] cut to a length that a message can show.
std::string Shown(std::string_view text);

bool IsVersionLine(std::string_view text);
bool IsOlderVersion(std::string_view version_line);
// Whether a text value ends in its quote.
bool IsValueClosed(std::string_view value);

// A text between quotes, its quotes doubled, and back.
std::string Quoted(std::string_view text);
std::string Unquoted(std::string_view quoted);

// "Form1.frx":00A3, with $ before it for a text; unquoted in old versions.
struct SiblingReference {
  std::string file;
  size_t offset = 0;
  bool is_text = false;    // $
  bool is_quoted = false;  // the file's name
};
bool ReadReference(std::string_view value, SiblingReference& reference);
std::string WriteReference(const SiblingReference& reference);

// A property line in the environment's layout: "   Name            =   value   'comment".
std::string PropertyLine(int depth, std::string_view name, std::string_view value_and_comment,
                         std::string_view line_end);
// [raw] with another value: what stands left of the value and the line end stay as they are.
std::string WithValue(std::string_view raw, std::string_view value_and_comment);

}  // namespace corvane::environment
