// What the reading commands find in lines of code: the word under the pointer, the object of a With block, a
// declaration, the class of a variable. Positions and lines count from 1.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace corvane::codelist {

struct Word {
  std::string text;  // may hold one dot: an object, a dot and a member
  std::string stop;  // the separator behind it; a blank at the end of the line
};

// The word around [position] of [line]; empty where a separator stands. In SQL "@" belongs to the word behind it.
Word WordAt(std::string_view line, size_t position, bool sql);

std::string BeforeFirstDot(std::string_view word);  // the whole word if there is no dot
std::string BehindFirstDot(std::string_view word);

// A line without its marks, by its number.
using CleanLineOf = std::function<std::string(long)>;

// The object of the With block around [line], to be put in front of a word that begins with a dot. Without such a block
// the last line looked at (line 2) as far as it is no comment.
std::string ObjectOfWith(const CleanLineOf& clean, long line);

// The first line above [line] that declares [name] (upper case) by As or Const. In a line with a comment only the
// comment is looked at.
std::optional<long> DeclarationAbove(const CleanLineOf& clean, long line, const std::string& name);

// The class (upper case) that [object] holds in [line]: what "As New" and "Set" gave it in the lines from 1 on, one
// after the other. The object itself where nothing did.
std::string ClassOf(const CleanLineOf& clean, long line, std::string_view object);

}  // namespace corvane::codelist
