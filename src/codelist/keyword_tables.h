// The words that the analyser knows, one table for Visual Basic and one for Transact-SQL.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace corvane::codelist {

enum class Marking : uint8_t {
  Opening,  // bold; the form's own marks follow the word
  Closing,  // a level down in front of the bold word
  Plain,    // canonical spelling only
};

enum class Condition : uint8_t { None, NoOpenBefore, InCase, OutsideCase };

enum class Effect : uint8_t { None, EndsProcedure, MeetsThen, EntersCase, LeavesCase };

// Rows of one first letter stand together and are tried in their order; the first that matches counts.
struct KeywordRow {
  std::string_view match;  // in upper case
  std::string_view next;   // the character behind the match is one of these; empty: any
  Marking marking;
  std::string_view form;  // what is written for the word
  char last;              // written behind the form, in place of the last consumed character
  int consumed;           // characters of the line that the row takes
  Condition condition = Condition::None;
  Effect effect = Effect::None;
  bool blank_behind = false;  // a word directly behind counts as one at a word start
};

inline constexpr size_t kLongestMatch = 17;

std::span<const KeywordRow> VbKeywords();
std::span<const KeywordRow> SqlKeywords();

}  // namespace corvane::codelist
