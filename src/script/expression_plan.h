// ExpressionPlan: what the rewriting of an expression's text does, worked out once for every value that may come.
//
// The plan is made by rewriting the text with marks in place of the values. It holds as long as each value put back is
// a text without the marks of the rewriting, a truth, or a number without a sign or another operator in it; for any
// other the rewriting goes on from there in its plain form, on the texts that the plan keeps for it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::script {

// A name whose place in the store is remembered.
struct NameReference {
  std::string token;
  std::string upper;
  // Where it was found, and when.
  mutable uint64_t generation = 0;
  mutable int depth = 0;
  mutable long cell = 0;

  bool IsFresh(uint64_t now, int at_depth) const { return generation == now && depth == at_depth; }
  void Remember(long number, uint64_t now, int at_depth) const {
    cell = number;
    generation = now;
    depth = at_depth;
  }
};

// A value put back: between marks, or as it is.
struct SlotValue {
  std::string text;
  bool quoted = false;
};

struct PlannedTerm {
  enum Kind {
    kWord,     // AND or OR
    kText,     // a value that is known
    kSlot,     // a value put back
    kName,     // may be a variable
    kToken,    // anything else
    kTemplate  // a token with values in it
  } kind;
  std::string text;
  NameReference name;
  size_t slot = 0;
  std::string op;
  bool last = false;
};

struct PlannedStep {
  std::vector<PlannedTerm> terms;
  enum Into { kNowhere, kPart, kWorking } into = kNowhere;  // where the value is put back
  bool counts = false;                                      // its truth is the expression's so far
  // For the plain form: the texts with the place for the value, and as they were before it was taken out.
  std::string part, part_before, working, working_before;
};

struct ExpressionPlan {
  std::vector<PlannedStep> steps;
  bool joins = false;  // an "&" stands in it
  size_t slots = 0;
  size_t rounds = 0;  // that the plain form would allow
};

// Nothing for an expression whose rewriting depends on more than the values' kinds, and for malformed ones.
std::optional<ExpressionPlan> PlanExpression(std::string_view text);

// A text of the plan with the values in their places.
std::string WithValues(std::string_view text, const std::vector<SlotValue>& values);

// Whether a plan holds for a value that is put back as it is, or between marks.
bool FitsPlan(std::string_view value, bool quoted);

// Whether an "&" stands outside double quotes.
bool HoldsJoin(std::string_view text);

}  // namespace corvane::script
