#include "script/expression_plan.h"

#include <cstdlib>

#include "runtime/strings.h"
#include "script/extraction.h"
#include "script/marks.h"
#include "script/names.h"
#include "script/numbers.h"
#include "script/simple_expression.h"

namespace corvane::script {

namespace {

using runtime::Holds;

class Refusal : public ErrorReport {
 public:
  void ReportError(const std::string&) override { refused = true; }
  bool refused = false;
};

std::string Mark(size_t slot) {
  return quoteMark + std::to_string(slot) + quoteMark;
}

bool HasSlot(std::string_view text) {
  return Holds(text, std::string_view(&quoteMark, 1));
}

// A lone number, which stands for itself; with a sign its negative.
bool IsNumberToken(std::string_view token) {
  if (!token.empty() && token[0] == '-') token.remove_prefix(1);
  return !token.empty() && token[0] != '&' && token[0] != '-' && !Holds(token, "(") && IsNumeric(token);
}

bool IsPlainName(const std::string& token) {
  return token.find_first_of("\"().") == std::string::npos && token[0] != '-' && !IsNumeric(token) &&
         !HidesVariables(runtime::UCase(token));
}

PlannedTerm Planned(const SimpleTokens& tokens) {
  PlannedTerm term{.kind = PlannedTerm::kToken, .text = tokens.token, .name = {}, .op = tokens.op, .last = tokens.last};
  const std::string& token = tokens.token;
  if (tokens.word) {
    term.kind = PlannedTerm::kWord;
  } else if (HasSlot(token)) {
    term.slot = std::strtoul(token.c_str() + token.find(quoteMark) + 1, nullptr, 10);
    term.kind = token == Mark(term.slot) ? PlannedTerm::kSlot : PlannedTerm::kTemplate;
  } else if (token[0] == '"') {
    term.kind = PlannedTerm::kText;
    const std::string text = AsPrimary(token);
    term.text = text.size() < 2 ? std::string() : text.substr(1, text.size() - 2);
  } else if (IsNumberToken(token)) {
    term.kind = PlannedTerm::kText;
    if (token[0] == '-') term.text = TextOfNumber(-*NumberOf(std::string_view(token).substr(1)));
  } else if (IsPlainName(token)) {
    term.kind = PlannedTerm::kName;
    term.name.token = token;
    term.name.upper = runtime::UCase(token);
  }
  return term;
}

// Follows the plain form step by step.
class Planner {
 public:
  explicit Planner(std::string_view text) : working_(text) {
    plan_.joins = HoldsJoin(text);
    plan_.rounds = 4 * text.size() + 64;
  }

  std::optional<ExpressionPlan> Make() {
    while (!working_.empty() && !refusal_.refused) {
      working_before_ = working_;
      PlanPart(Extract(working_));
      if (!Holds(working_, kTakenOut)) break;
      if (working_.size() < 3) {
        working_.clear();
        break;
      }
      TakeValue(PlannedStep::kWorking, working_, {});
    }
    if (!working_.empty()) Evaluate(working_).counts = true;
    if (refusal_.refused) return {};
    return std::move(plan_);
  }

 private:
  // An operation that lacks an operand is taken out or not by the length of the other.
  std::string Extract(std::string& text) {
    std::string part = ExtractSubExpression(text, refusal_);
    if (HasSlot(part) && (IsOperator(part.front()) || IsOperator(part.back()))) refusal_.refused = true;
    return part;
  }

  void PlanPart(std::string part) {
    while (!refusal_.refused) {
      const std::string before = part;
      const std::string inner = Extract(part);
      if (part == kTakenOut || !Holds(part, kTakenOut)) {
        Evaluate(inner.empty() ? part : inner).counts = true;
        return;
      }
      Evaluate(inner);
      TakeValue(PlannedStep::kPart, part, before);
    }
  }

  PlannedStep& Evaluate(std::string_view text) {
    PlannedStep& step = plan_.steps.emplace_back();
    for (SimpleTokens tokens(text); tokens.Next();) step.terms.push_back(Planned(tokens));
    return step;
  }

  void TakeValue(PlannedStep::Into into, std::string& text, const std::string& before) {
    PlannedStep& step = plan_.steps.back();
    step.into = into;
    step.part = text;
    step.part_before = before;
    step.working = working_;
    step.working_before = working_before_;
    text.replace(text.find(kTakenOut), kTakenOut.size(), Mark(plan_.slots++));
  }

  ExpressionPlan plan_;
  std::string working_, working_before_;
  Refusal refusal_;
};

}  // namespace

bool HoldsJoin(std::string_view text) {
  bool quoted = false;
  for (char c : text) {
    if (c == '"') quoted = !quoted;
    if (c == '&' && !quoted) return true;
  }
  return false;
}

std::optional<ExpressionPlan> PlanExpression(std::string_view text) {
  if (HasSlot(text) || Holds(text, kTakenOut)) return {};
  return Planner(text).Make();
}

std::string WithValues(std::string_view text, const std::vector<SlotValue>& values) {
  std::string result;
  for (size_t at = 0; at < text.size(); ++at) {
    if (text[at] != quoteMark) {
      result += text[at];
      continue;
    }
    const size_t end = text.find(quoteMark, at + 1);
    const SlotValue& value = values[std::strtoul(std::string(text.substr(at + 1, end - at - 1)).c_str(), nullptr, 10)];
    if (value.quoted) result += quoteMark;
    result += value.text;
    if (value.quoted) result += quoteMark;
    at = end;
  }
  return result;
}

bool FitsPlan(std::string_view value, bool quoted) {
  if (quoted) return !Holds(value, kTakenOut) && value.find(quoteMark) == std::string_view::npos;
  return value == "True" || value == "False" || value.find_first_not_of("0123456789.EeDd$") == std::string_view::npos;
}

}  // namespace corvane::script
