#include "script/simple_expression.h"

#include <utility>

#include "runtime/strings.h"
#include "script/marks.h"
#include "script/numbers.h"

namespace corvane::script {

namespace {

bool IsBetween(const std::string& token, char mark) {
  return token.size() >= 2 && token.front() == mark && token.back() == mark;
}

}  // namespace

SimpleTokens::SimpleTokens(std::string_view text) : rest_(runtime::Trim(text)) {
  if (!rest_.empty() && rest_.back() == ':') rest_.pop_back();
  rest_ += ' ';
}

// A sign at the front, and one behind "(", belong to the token.
size_t SimpleTokens::EndOfToken() const {
  char open = 0;
  for (size_t at = 0; at < rest_.size(); ++at) {
    const char c = rest_[at];
    if (open != 0) {
      if (c == open) open = 0;
    } else if (c == '"' || c == quoteMark) {
      open = c;
    } else if (at > 0 && IsOperator(c) && !((c == '+' || c == '-') && rest_[at - 1] == '(')) {
      return at;
    }
  }
  return std::string::npos;
}

// Joins a "=" or ">" that follows.
void SimpleTokens::TakeOperator(size_t length) {
  if (length < rest_.size() && (rest_[length] == '=' || rest_[length] == '>')) ++length;
  op = rest_.substr(0, length);
  rest_.erase(0, length);
}

bool SimpleTokens::Next() {
  const size_t end = EndOfToken();
  if (end == std::string::npos) return false;
  token = rest_.substr(0, end);
  rest_.erase(0, end);
  if (rest_[0] == ' ') {
    op = " ";
    rest_.erase(0, 1);
  } else {
    TakeOperator(1);
  }
  const std::string upper = token.size() <= 3 ? runtime::UCase(token) : std::string();
  word = upper == "AND" || upper == "OR";
  if (word) {
    token = upper;
    return true;
  }
  if (op == " " && !rest_.empty() && IsOperator(rest_[0])) TakeOperator(1);
  last = rest_.empty();
  if (!rest_.empty() && rest_[0] == ' ') rest_.erase(0, 1);
  return true;
}

std::string AsPrimary(const std::string& token) {
  if (IsBetween(token, quoteMark)) return '"' + token.substr(1, token.size() - 2) + '"';
  if (IsBetween(token, '"') && token.size() >= 4)
    return '"' + runtime::Replace(std::string_view(token).substr(1, token.size() - 2), "\"\"", "\"") + '"';
  return token;
}

void SimpleEvaluation::Operand(std::string value, std::string_view op, bool last) {
  if ((IsComparison(op) || last) && pending_.empty())
    ComparePoint(std::move(value), op);
  else if (!pending_.empty())
    ApplyPending(value, op);
  else
    Start(std::move(value), op);
}

void SimpleEvaluation::ComparePoint(std::string value, std::string_view op) {
  if (acc_.text.empty() && comparison_.empty()) {
    acc_.text = std::move(value);
    comparison_ = op;
    TakeTruth();
    state_.lastValue = acc_.text;
  } else {
    if (const auto holds = Compare(comparison_, acc_.text, value)) result_ = *holds;
    state_.lastValue = result_;
  }
  ApplyNot();
}

void SimpleEvaluation::ApplyPending(const std::string& value, std::string_view op) {
  Apply(pending_, acc_, value, state_.lastValue);
  TakeTruth();
  ApplyNot();
  pending_ = runtime::Trim(op);
  if (IsComparison(pending_)) comparison_ = std::exchange(pending_, std::string());
}

void SimpleEvaluation::Start(std::string value, std::string_view op) {
  acc_.text = std::move(value);
  pending_ = runtime::Trim(op);
  TakeTruth();
  state_.lastValue = acc_.text;
  if (IsComparison(pending_)) comparison_ = std::exchange(pending_, std::string());
}

void SimpleEvaluation::TakeTruth() {
  if (const auto truth = BooleanOf(acc_.text)) result_ = *truth;
}

void SimpleEvaluation::ApplyNot() {
  if (!state_.notFlag) return;
  result_ = !result_;
  state_.lastValue = result_;
  state_.notFlag = false;
}

// A list that ends in a comma has an empty last value.
bool SimpleEvaluation::Finish() {
  if (pending_ == ",") {
    acc_.text += listSep;
    state_.lastValue = acc_.text;
  }
  return result_;
}

}  // namespace corvane::script
