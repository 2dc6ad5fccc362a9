#include "script/known_assignment.h"

#include "runtime/strings.h"

namespace corvane::script {

namespace {

using runtime::Left;
using runtime::Mid;

bool IsPlainTarget(std::string_view upper) {
  return !upper.empty() && !runtime::BeginsWith(upper, "VAR(") && !runtime::Holds(upper, ".");
}

bool IsName(const PlannedTerm& term, std::string_view upper) {
  if (term.kind == PlannedTerm::kName) return term.name.upper == upper;
  return term.kind == PlannedTerm::kToken && runtime::UCase(term.text) == upper;
}

// A value that can be had without running code.
bool IsQuiet(const PlannedTerm& term) {
  return term.kind == PlannedTerm::kText || term.kind == PlannedTerm::kName || term.kind == PlannedTerm::kSlot ||
         IsName(term, "VBCRLF");
}

// Whether the right side is the target itself with "&" or "+" and quiet values behind it.
bool Appends(const KnownAssignment& known) {
  const auto plan = PlanExpression(known.right.Get());
  if (!plan || plan->steps.empty()) return false;
  const auto& terms = plan->steps.back().terms;
  if (terms.size() < 2 || !IsName(terms[0], known.target.upper)) return false;
  for (size_t i = 0; i + 1 < terms.size(); ++i)
    if ((terms[i].op != "&" && terms[i].op != "+") || !IsQuiet(terms[i + 1])) return false;
  return terms.back().last && terms.back().op == " ";
}

}  // namespace

std::string WithOwnOperator(const std::string& statement, long& eq) {
  const auto place = static_cast<size_t>(eq) - 2;  // the header of a broken statement may point beyond its end
  const char before = eq >= 2 && place < statement.size() ? statement[place] : ' ';
  if (std::string_view("+-*/&").find(before) == std::string_view::npos) return statement;
  const std::string name = Left(statement, eq - 2);
  const std::string operation = Mid(statement, eq - 1, 1) + Mid(statement, eq + 1);
  eq = runtime::Len(name) + 1;
  return name + "=" + name + operation;
}

std::optional<KnownAssignment> KnownOf(const std::string& statement, long eq) {
  long written_eq = eq;
  const std::string written = WithOwnOperator(statement, written_eq);
  KnownAssignment known{
      .eq = eq, .target = {}, .to_result = false, .right = Mid(written, written_eq + 1), .appends = false};
  known.target.upper = runtime::UCase(runtime::Trim(Left(written, written_eq - 1)));
  if (!IsPlainTarget(known.target.upper) || known.right.Size() < 2) return {};
  if (runtime::BeginsWith(known.right.Get(), "[[")) return {};
  known.to_result = known.target.upper == "RESULT";
  known.appends = Appends(known);
  return known;
}

}  // namespace corvane::script
