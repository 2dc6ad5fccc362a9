#include "script/known_assignment.h"

#include "runtime/strings.h"

namespace corvane::script {

namespace {

using runtime::Left;
using runtime::Mid;

bool IsPlainTarget(std::string_view upper) {
  return !upper.empty() && upper != "RESULT" && !runtime::BeginsWith(upper, "VAR(") && !runtime::Holds(upper, ".");
}

// A value that can be had without running code.
bool IsQuiet(const PlannedTerm& term) {
  return term.kind == PlannedTerm::kText || term.kind == PlannedTerm::kName;
}

// Fills what is joined if the right side is the target itself with "&" or "+" and quiet values behind it.
void FindJoined(KnownAssignment& known) {
  const auto plan = PlanExpression(known.right.Get());
  if (!plan || plan->steps.size() != 1) return;
  const auto& terms = plan->steps[0].terms;
  if (terms.size() < 2 || terms[0].kind != PlannedTerm::kName || terms[0].name.upper != known.target.upper) return;
  for (size_t i = 0; i + 1 < terms.size(); ++i)
    if ((terms[i].op != "&" && terms[i].op != "+") || !IsQuiet(terms[i + 1])) return;
  if (!terms.back().last || terms.back().op != " ") return;
  known.joined = terms[0].name;
  known.behind.assign(terms.begin() + 1, terms.end());
}

}  // namespace

std::string WithOwnOperator(const std::string& statement, long& eq) {
  const char before = eq >= 2 ? statement[static_cast<size_t>(eq) - 2] : ' ';
  if (std::string_view("+-*/&").find(before) == std::string_view::npos) return statement;
  const std::string name = Left(statement, eq - 2);
  const std::string operation = Mid(statement, eq - 1, 1) + Mid(statement, eq + 1);
  eq = runtime::Len(name) + 1;
  return name + "=" + name + operation;
}

std::optional<KnownAssignment> KnownOf(const std::string& statement, long eq) {
  long written_eq = eq;
  const std::string written = WithOwnOperator(statement, written_eq);
  KnownAssignment known{.eq = eq, .target = {}, .right = Mid(written, written_eq + 1), .joined = {}, .behind = {}};
  known.target.upper = runtime::UCase(runtime::Trim(Left(written, written_eq - 1)));
  if (!IsPlainTarget(known.target.upper) || known.right.Get().size() < 2) return {};
  if (runtime::BeginsWith(known.right.Get(), "[[")) return {};
  FindJoined(known);
  return known;
}

}  // namespace corvane::script
