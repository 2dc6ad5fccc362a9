// The signs behind operators that the language takes for operators.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "script/source_statements.h"

namespace corvane::script {

// Whether one stands in the statement.
bool HasOddSign(const SourceStatement& source);

// What a statement evaluates, each as one expression, in the form in which it does so: a FOR compares its variable with
// its limit, a SELECT CASE and a CASE put a slot in front of their values, a CALL puts a comma behind them.
std::vector<std::string> EvaluatedTexts(const SourceStatement& source);

}  // namespace corvane::script
