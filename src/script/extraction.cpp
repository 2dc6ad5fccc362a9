#include "script/extraction.h"

#include <utility>
#include <vector>

#include "runtime/strings.h"
#include "script/operators.h"

namespace corvane::script {

namespace {

constexpr size_t kNone = std::string::npos;

// What one pass over the text finds out. Columns count from 0.
struct Survey {
  std::vector<bool> quoted;
  size_t open = kNone, close = kNone;  // the first of the innermost brackets
  bool operator_inside = false;        // other than directly behind its "("
  int lowest = 0, highest = 0;         // ranks met before any bracket
  size_t highest_column = 0;
};

void Rank(Survey& survey, std::string_view text, size_t at) {
  const int rank = RankOf(text[at] == ' ' ? WordOperatorAt(text, at) : text.substr(at, 1));
  if (rank == 0) return;
  if (survey.lowest == 0 || rank < survey.lowest) survey.lowest = rank;
  if (rank <= survey.highest) return;
  survey.highest = rank;
  survey.highest_column = at;
}

Survey Look(std::string_view text) {
  Survey survey{QuotedColumns(text)};
  int depth = 0, deepest = 0;
  for (size_t at = 0; at < text.size(); ++at) {
    if (survey.quoted[at]) continue;
    if (text[at] == '(' && ++depth > deepest) {
      deepest = depth;
      survey.open = at;
      survey.close = kNone;
      survey.operator_inside = false;
    } else if (text[at] == ')') {
      if (depth == deepest && deepest > 0 && survey.close == kNone) survey.close = at;
      if (--depth < 0) break;
    } else if (IsOperator(text[at])) {
      if (survey.open == kNone && at > 0) Rank(survey, text, at);
      if (survey.open != kNone && survey.close == kNone && at > survey.open + 1) survey.operator_inside = true;
    }
  }
  return survey;
}

std::string TakeOut(std::string& text, size_t from, size_t length) {
  std::string part = text.substr(from, length);
  text.replace(from, length, kTakenOut);
  return part;
}

std::string TakeBracket(std::string& text, const Survey& survey) {
  const size_t open = survey.open, inside = open + 1, length = survey.close - inside;
  const std::string content = runtime::Trim(std::string_view(text).substr(inside, length));
  if (open == 0 || (IsOperator(text[open - 1]) && !survey.quoted[open - 1])) {
    TakeOut(text, open, length + 2);
    return content;
  }
  if (survey.operator_inside) {
    TakeOut(text, inside, length);
    return content;
  }
  size_t name = open;
  while (name > 0) {
    const char c = text[name - 1];
    if (!survey.quoted[name - 1] && (IsOperator(c) || c == '(' || c == ')')) break;
    --name;
  }
  return TakeOut(text, name, survey.close + 1 - name);
}

size_t LengthOfOperator(std::string_view text, size_t at) {
  if (text[at] == ' ') return WordOperatorAt(text, at).size();
  const std::string_view pair = text.substr(at, 2);
  return pair == "<=" || pair == ">=" || pair == "<>" || pair == "=>" ? 2 : 1;
}

std::string TakeOperation(std::string& text, const Survey& survey) {
  const auto ends = [&](size_t at) { return IsOperator(text[at]) && !survey.quoted[at]; };
  size_t from = survey.highest_column;
  while (from > 0 && !ends(from - 1)) --from;
  size_t behind = survey.highest_column + LengthOfOperator(text, survey.highest_column);
  while (behind < text.size() && !ends(behind)) ++behind;
  return behind - from < 3 ? std::string() : TakeOut(text, from, behind - from);
}

}  // namespace

std::string ExtractSubExpression(std::string& text, ErrorReport& errors) {
  const Survey survey = Look(text);
  if (survey.open != kNone && survey.close == kNone) {
    errors.ReportError("Bad expression");
    text.clear();
    return {};
  }
  if (survey.open != kNone) return TakeBracket(text, survey);
  if (survey.highest == survey.lowest) return std::exchange(text, std::string());
  return TakeOperation(text, survey);
}

}  // namespace corvane::script
