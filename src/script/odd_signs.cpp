#include "script/odd_signs.h"

#include "runtime/strings.h"
#include "script/for_statement.h"
#include "script/if_statement.h"
#include "script/operators.h"

namespace corvane::script {

namespace {

using runtime::BeginsWith;
using runtime::Holds;
using std::string_view;

constexpr size_t kNone = std::string::npos;

bool IsIn(string_view set, char c) {
  return set.find(c) != string_view::npos;
}

// The text between the keyword and its THEN.
std::string Condition(const std::string& upper, size_t keyword) {
  const long then_column = ThenColumn(upper);
  return upper.substr(keyword, then_column > static_cast<long>(keyword) ? then_column - 1 - keyword : kNone);
}

// The right side, with its target and operator in front where those take part.
std::vector<std::string> Assigned(const SourceStatement& source) {
  const std::string& text = source.upper;
  const auto equals = static_cast<size_t>(source.statement.eqPos) - 1;
  const std::string right = text.substr(equals + 1);
  if (equals > 0 && IsIn("+-*/&", text[equals - 1])) return {text.substr(0, equals) + right};
  return {right};
}

// Index and value of an element; or the whole command.
std::vector<std::string> InBrackets(const std::string& text) {
  const size_t close = text.find(")=");
  if (close == kNone) return {text};
  return {text.substr(0, close + 1), text.substr(close + 2)};
}

std::vector<std::string> OfCall(const std::string& text) {
  const size_t open = text.find('('), close = text.rfind(')');
  if (open == kNone || close == kNone || close < open) return {};
  return {text.substr(open + 1, close - open - 1) + ','};
}

std::vector<std::string> OfFor(const SourceStatement& source) {
  const auto parts = ReadFor(source.upper);
  if (!parts) return {};
  return {parts->init.substr(parts->init.find('=') + 1), parts->variable + "<=" + parts->limit, parts->step};
}

// What stands behind the operand whose sign is at [sign].
string_view BehindOperand(string_view depth, size_t sign) {
  const size_t end = depth.find_first_of("+-*/\\&<>=,() :", sign + 1);
  return depth.substr(std::min(end, depth.size()));
}

// Whether the bracket at the end of [outer] holds a signed operand alone, and belongs to no name: 12*(-3) is 12*-3.
bool IsSignedOperand(string_view outer, string_view inner) {
  const bool group = outer.size() == 1 || IsOperator(outer[outer.size() - 2]);
  return group && inner.size() > 1 && IsIn("+-", inner[0]) && BehindOperand(inner, 0).empty();
}

// What stands at one depth of brackets, each pair in it as "()".
std::vector<std::string> Depths(string_view expression) {
  std::vector<std::string> open(1), all;
  for (const char c : expression) {
    if (c == ')' && open.size() > 1) {
      const std::string inner = std::move(open.back());
      open.pop_back();
      if (IsSignedOperand(open.back(), inner)) {
        open.back().back() = inner[0];
        open.back() += inner.substr(1);
        continue;
      }
      all.push_back(inner);
    }
    open.back() += c;
    if (c == '(') open.emplace_back();
  }
  all.insert(all.end(), open.begin(), open.end());
  return all;
}

struct Around {
  bool combines;  // AND, OR
  bool compares;
  bool lists;
};

Around AroundOf(string_view depth) {
  return {Holds(depth, " AND ") || Holds(depth, " OR "), depth.find_first_of("<>=") != kNone, depth.find(',') != kNone};
}

// A name or number behind its sign, which nothing is reckoned with.
bool IsOperandAlone(string_view depth, size_t sign) {
  const string_view behind = BehindOperand(depth, sign);
  return behind.size() + sign + 1 < depth.size() && (behind.empty() || !IsIn("+-*/\\&(", behind[0]));
}

// Whether something is added, taken away or joined in [text]; a sign behind a comma or comparison does none of these.
bool Reckons(string_view text) {
  for (size_t at = 0; at < text.size(); ++at)
    if (IsIn("+-&", text[at]) && (at == 0 || !IsIn("<>=,", text[at - 1]))) return true;
  return false;
}

// Only operators of one rank are gone through from left to right. Of others the one that binds tightest is done first,
// and a sign binds as tightly as the operator that it looks like.
bool IsOdd(string_view depth, size_t sign, const Around& around) {
  const char op = depth[sign - 1];
  if (IsIn("*/\\", op)) return true;
  const string_view behind = BehindOperand(depth, sign);
  if (IsIn("<>=,", op))
    return !IsOperandAlone(depth, sign) || Reckons(behind) || around.combines ||
           (op == ',' ? around.compares : around.lists);
  return around.combines || around.compares || around.lists || (!behind.empty() && IsIn("*/\\", behind[0]));
}

bool HoldsOddSign(string_view depth) {
  const Around around = AroundOf(depth);
  for (size_t at = 1; at + 1 < depth.size(); ++at)
    if (IsIn("+-", depth[at]) && IsIn("+-*/\\&<>=,", depth[at - 1]) && IsOdd(depth, at, around)) return true;
  return false;
}

}  // namespace

std::vector<std::string> EvaluatedTexts(const SourceStatement& source) {
  const std::string& text = source.upper;
  if (BeginsWith(text, "FOR ")) return OfFor(source);
  if (BeginsWith(text, "IF ") || BeginsWith(text, "IF(")) return {Condition(text, 2)};
  if (BeginsWith(text, "ELSEIF")) return {Condition(text, 6)};
  if (BeginsWith(text, "WHILE ")) return {text.substr(6)};
  if (BeginsWith(text, "SELECT CASE")) return {"0," + text.substr(11)};
  if (BeginsWith(text, "CASE ") && text != "CASE ELSE:") return {"0," + text.substr(5)};
  if (BeginsWith(text, "CALL ")) return OfCall(text);
  if (source.statement.eqPos > 0) return Assigned(source);
  return InBrackets(text);
}

bool HasOddSign(const SourceStatement& source) {
  for (const std::string& expression : EvaluatedTexts(source))
    for (const std::string& depth : Depths(expression))
      if (HoldsOddSign(depth)) return true;
  return false;
}

}  // namespace corvane::script
