#include "script/operators.h"

#include <array>
#include <cmath>
#include <new>

#include "runtime/strings.h"
#include "script/marks.h"
#include "script/numbers.h"

namespace corvane::script {

namespace {

// Each operator in angle brackets and its rank behind them. It is searched for "<" operator ">".
constexpr std::string_view kPrecedence = R"(<*>9</>9<\>9<+>8<&>8<->8<<>7<>>7<=>7< AND >6< OR >5<,>1)";

// Operands are not too long each, but all of them together may be.
void Join(std::string& text, std::string_view value) {
  constexpr size_t kLongest = 1u << 28;
  if (text.size() + value.size() > kLongest) throw std::bad_alloc();
  text += value;
}

// The three that leave a double behind.
void Calculate(Accumulator& acc, const std::string& value, Cell& last, double (*operation)(double, double)) {
  const auto left = NumberOf(acc.text), right = NumberOf(value);
  if (!left || !right) return;
  const double result = operation(*left, *right);
  if (!std::isfinite(result)) return;
  acc.text = TextOfNumber(result);
  last = result;
}

void Connect(Accumulator& acc, const std::string& value, Cell& last, bool (*operation)(bool, bool)) {
  const auto left = BooleanOf(acc.text), right = BooleanOf(value);
  if (!left || !right) return;
  acc.text = BooleanText(operation(*left, *right));
  last = acc.text;
}

void Add(Accumulator& acc, const std::string& value, Cell& last) {
  const auto left = acc.joined ? std::nullopt : NumberOf(acc.text);
  const auto right = left ? NumberOf(value) : std::nullopt;
  if (left && right) {
    if (!std::isfinite(*left + *right)) return;
    acc.text = TextOfNumber(*left + *right);
  } else {
    acc.joined = true;
    Join(acc.text, value);
  }
  last = acc.text;
}

struct Row {
  std::string_view op;
  void (*apply)(Accumulator& acc, const std::string& value, Cell& last);
};

constexpr Row kOperators[] = {
    {"AND", [](Accumulator& acc, const std::string& value,
               Cell& last) { Connect(acc, value, last, [](bool a, bool b) { return a && b; }); }},
    {"OR", [](Accumulator& acc, const std::string& value,
              Cell& last) { Connect(acc, value, last, [](bool a, bool b) { return a || b; }); }},
    {"&",
     [](Accumulator& acc, const std::string& value, Cell& last) {
       std::string joined = TextOf(last);
       Join(joined, value);
       last = Text(std::move(joined));
       Join(acc.text, value);
     }},
    {"+", Add},
    {"-", [](Accumulator& acc, const std::string& value,
             Cell& last) { Calculate(acc, value, last, [](double a, double b) { return a - b; }); }},
    {"*", [](Accumulator& acc, const std::string& value,
             Cell& last) { Calculate(acc, value, last, [](double a, double b) { return a * b; }); }},
    {"/", [](Accumulator& acc, const std::string& value,
             Cell& last) { Calculate(acc, value, last, [](double a, double b) { return a / b; }); }},
    {",",
     [](Accumulator& acc, const std::string& value, Cell& last) {
       acc.text += listSep;
       Join(acc.text, value);
       last = acc.text;
     }},
};

// What an ordering makes of "less" (-1), "equal" (0) and "greater" (1).
struct Ordering {
  std::string_view op;
  std::array<bool, 3> holds;
};

constexpr Ordering kOrderings[] = {
    {">", {false, false, true}},
    {"<=", {true, true, false}},
    {">=", {false, true, true}},
    {"<", {true, false, false}},
};

template <class T>
int Sign(const T& left, const T& right) {
  return left < right ? -1 : right < left ? 1 : 0;
}

}  // namespace

std::string_view WordOperatorAt(std::string_view text, size_t at) {
  for (std::string_view word : {std::string_view(" OR "), std::string_view(" AND ")})
    if (text.size() - at >= word.size() && runtime::UCase(text.substr(at, word.size())) == word) return word;
  return {};
}

namespace {

int SearchedRank(std::string_view op) {
  if (op.empty()) return 0;
  const std::string entry = std::string("<").append(op).append(">");
  const size_t at = kPrecedence.find(entry);
  return at == std::string_view::npos ? 0 : kPrecedence[at + entry.size()] - '0';
}

}  // namespace

int RankOf(std::string_view op) {
  static const auto ranks = [] {
    std::array<int, 256> by_character{};
    for (char c : kOperatorSet) by_character[static_cast<unsigned char>(c)] = SearchedRank(std::string_view(&c, 1));
    return by_character;
  }();
  return op.size() == 1 ? ranks[static_cast<unsigned char>(op[0])] : SearchedRank(op);
}

std::vector<bool> QuotedColumns(std::string_view text) {
  std::vector<bool> quoted(text.size());
  char open = 0;
  for (size_t at = 0; at < text.size(); ++at) {
    const char c = text[at];
    const bool mark = c == '"' || c == quoteMark;
    quoted[at] = open != 0 || mark;
    if (open == 0 && mark)
      open = c;
    else if (c == open)
      open = 0;
  }
  return quoted;
}

void Apply(std::string_view op, Accumulator& acc, const std::string& value, Cell& last) {
  for (const Row& row : kOperators)
    if (row.op == op) return row.apply(acc, value, last);
}

std::optional<bool> Compare(std::string_view op, std::string_view left, std::string_view right) {
  if (op == "=") return left == right;
  if (op == "<>") return left != right;
  for (const Ordering& ordering : kOrderings) {
    if (ordering.op != op) continue;
    if (left.size() == right.size()) return ordering.holds[static_cast<size_t>(Sign(left, right) + 1)];
    const auto left_number = NumberOf(left), right_number = NumberOf(right);
    if (!left_number || !right_number) return {};
    return ordering.holds[static_cast<size_t>(Sign(*left_number, *right_number) + 1)];
  }
  return {};
}

}  // namespace corvane::script
