// The operators of the language: which characters end a token, how tightly each binds, what each does.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "script/cell.h"

namespace corvane::script {

// The operator set: these end a token outside a string and outside a pair of quoteMark.
inline constexpr std::string_view kOperatorSet = "+-<>*/\\=&, ";
inline bool IsOperator(char c) {
  return kOperatorSet.find(c) != std::string_view::npos;
}
inline bool IsComparison(std::string_view op) {
  return !op.empty() && (op[0] == '=' || op[0] == '>' || op[0] == '<');
}

// " AND " or " OR " in any case at [at] (from 0) of [text], in upper case; empty if neither stands there.
std::string_view WordOperatorAt(std::string_view text, size_t at);

// Higher binds tighter; 0 for what is no operator.
int RankOf(std::string_view op);

// Which characters of [text] stand inside double quotes or a pair of quoteMark, the marks themselves included. An open
// one reaches to the end.
std::vector<bool> QuotedColumns(std::string_view text);

// The running value of a simple expression.
struct Accumulator {
  std::string text;     // acc
  bool joined = false;  // a "+" has met a text: every "+" joins from now on
};

// Applies [op] to [acc] and [value]; [last] is the value of the expression so far. A conversion that fails and an
// operator that is not known leave both as they are.
void Apply(std::string_view op, Accumulator& acc, const std::string& value, Cell& last);

// Nothing for texts that are no comparison, and where a conversion fails.
std::optional<bool> Compare(std::string_view op, std::string_view left, std::string_view right);

}  // namespace corvane::script
