#include "script/script_check.h"

#include <iterator>
#include <set>
#include <utility>

#include "runtime/strings.h"
#include "script/for_statement.h"
#include "script/marks.h"
#include "script/numbers.h"
#include "script/odd_signs.h"
#include "script/operators.h"
#include "script/source_statements.h"
#include "script/translator.h"

namespace corvane::script {

namespace {

using runtime::BeginsWith;
using runtime::Holds;
using std::string_view;

bool IsIn(string_view set, char c) {
  return set.find(c) != string_view::npos;
}

bool OpensLoop(const SourceStatement& source) {
  return BeginsWith(source.upper, "WHILE ") || (BeginsWith(source.upper, "FOR ") && ReadFor(source.statement.text));
}

bool ClosesLoop(const SourceStatement& source) {
  for (const char* closer : {"NEXT ", "NEXT:", "WEND:", "LOOP:"})
    if (BeginsWith(source.upper, closer)) return true;
  return false;
}

bool OpensIf(const SourceStatement& source) {
  return !source.is_one_line_if && (BeginsWith(source.upper, "IF ") || BeginsWith(source.upper, "IF("));
}

// The names of a DIM, without brackets.
std::vector<std::string> NamesOf(const SourceStatement& source) {
  std::vector<std::string> names;
  if (!BeginsWith(source.upper, "DIM ")) return names;
  std::string list = source.upper.substr(4);
  for (char& c : list)
    if (IsIn(":() ", c)) c = ',';
  for (size_t end; !list.empty(); list.erase(0, end == std::string::npos ? end : end + 1)) {
    end = list.find(',');
    if (end > 0) names.push_back(list.substr(0, end));
  }
  return names;
}

// What the statements before a statement leave behind, as the translator's counters have it, and what stands anywhere.
class Surroundings {
 public:
  explicit Surroundings(const std::vector<SourceStatement>& all) {
    int open = 0;
    for (const SourceStatement& source : all) {
      if (BeginsWith(source.upper, "GOTO ")) labels_.insert(source.upper.substr(5));
      for (std::string& name : NamesOf(source)) names_.insert(std::move(name));
      if (OpensLoop(source) || OpensIf(source)) ++open;
      if (ClosesLoop(source) || BeginsWith(source.upper, "END IF")) open = std::max(open - 1, 0);
      open_behind_.resize(source.piece + 1);
      open_behind_.back() = open > 0;
    }
  }

  void Pass(const SourceStatement& source) {
    const string_view text = source.upper;
    opened_twin_ = closed_twin_ = false;
    if (OpensLoop(source)) {
      openers_.push_back(source.piece);
      if (openers_.size() == 1) ++loop_;
      opened_twin_ = !heads_.insert({loop_, openers_.size()}).second;
    }
    if (ClosesLoop(source) && !openers_.empty()) {
      if (openers_.back() != source.piece) closed_twin_ = !closing_.insert(source.piece).second;
      openers_.pop_back();
    }
    if (BeginsWith(text, "SUB ") || BeginsWith(text, "FUNCTION ")) in_sub_ = true;
    if (BeginsWith(text, "END SUB") || BeginsWith(text, "END FUNCTION")) in_sub_ = false;
  }

  bool InLoop() const { return !openers_.empty(); }
  bool InSub() const { return in_sub_; }
  bool OpenedTwin() const { return opened_twin_; }  // a loop whose label another one has already
  bool ClosedTwin() const { return closed_twin_; }  // a loop over text, where its piece has closed another one
  bool StaysOpen(size_t piece) const { return open_behind_[piece]; }
  bool IsSought(const std::string& label) const { return labels_.contains(label); }
  bool IsName(const std::string& name) const { return names_.contains(name); }

 private:
  std::set<std::string> labels_, names_;
  std::set<std::pair<int, size_t>> heads_;
  std::vector<size_t> openers_;    // the pieces of the loops that are open
  std::set<size_t> closing_;       // pieces that closed a loop over text
  std::vector<bool> open_behind_;  // by piece: a loop or an IF
  int loop_ = 0;
  bool opened_twin_ = false, closed_twin_ = false, in_sub_ = false;
};

bool CountsDown(const SourceStatement& source, const Surroundings&) {
  const auto parts = BeginsWith(source.upper, "FOR ") ? ReadFor(source.statement.text) : std::nullopt;
  return parts && BeginsWith(parts->step, "-");
}

// Only a "-" in front of the step turns the comparison over.
bool CountsDownUnseen(const SourceStatement& source, const Surroundings&) {
  const auto parts = BeginsWith(source.upper, "FOR ") ? ReadFor(source.statement.text) : std::nullopt;
  if (!parts) return false;
  const size_t value = std::min(parts->step.find_first_not_of("=( "), parts->step.size());
  const string_view step = string_view(parts->step).substr(value);
  return BeginsWith(step, "0-") || (value > 0 && BeginsWith(step, "-"));
}

bool HasEmptyStep(const SourceStatement& source, const Surroundings&) {
  const auto parts = BeginsWith(source.upper, "FOR ") ? ReadFor(source.statement.text) : std::nullopt;
  return parts && parts->step.empty();
}

bool IsTwinLoop(const SourceStatement&, const Surroundings& around) {
  return around.OpenedTwin();
}

bool IsBareWord(const SourceStatement& source) {
  const Statement& statement = source.statement;
  if (statement.eqPos >= 1 || statement.parenPos != 0 || statement.operatorMet) return false;
  for (const char* word :
       {"ELSE:", "ELSEIF", "NEXT:", "WEND:", "LOOP:", "CONTINUE:", "STOPEX:", "STOP:", "EXIT:", "DEBUG:"})
    if (BeginsWith(source.upper, word)) return false;
  return source.upper.front() != labelMark && source.upper.front() != ':';
}

bool IsReservedWord(const SourceStatement& source, const Surroundings&) {
  return IsBareWord(source) && source.upper.size() > 2 && Holds(kBareWords, source.upper);
}

bool IsUnsoughtLabel(const SourceStatement& source, const Surroundings& around) {
  return IsBareWord(source) && source.upper.size() > 2 && !Holds(kBareWords, source.upper) &&
         !around.IsSought(source.upper);
}

bool IsLetterAlone(const SourceStatement& source, const Surroundings&) {
  return IsBareWord(source) && source.upper.size() == 2;
}

bool HasMoreBehindIf(const SourceStatement& source, const Surroundings&) {
  return source.is_one_line_if && source.more_on_line;
}

bool LostTo(const SourceStatement& source, const Surroundings&) {
  const string_view text = source.upper;
  return BeginsWith(text, "FOR ") && !Holds(text, " TO ") &&
         (Holds(text, " TO-") || Holds(text, " TO+") || Holds(text, " TO("));
}

bool BeginsWithOneOf(string_view text, std::initializer_list<const char*> starts) {
  for (const char* start : starts)
    if (BeginsWith(text, start)) return true;
  return false;
}

bool LostWhile(const SourceStatement& source, const Surroundings&) {
  return BeginsWithOneOf(source.upper, {"WHILE(", "WHILE-", "WHILE+"});
}

bool LostCase(const SourceStatement& source, const Surroundings&) {
  return BeginsWithOneOf(source.upper, {"CASE(", "CASE-", "CASE+"});
}

bool LostIf(const SourceStatement& source, const Surroundings&) {
  return BeginsWithOneOf(source.upper, {"IF-", "IF+", "ELSEIF-", "ELSEIF+"});
}

bool LostAndOr(const SourceStatement& source, const Surroundings&) {
  for (const char* glued : {" AND-", " AND+", " OR-", " OR+"})
    if (Holds(source.upper, glued)) return true;
  return false;
}

bool HasSignBehindOperator(const SourceStatement& source, const Surroundings&) {
  return HasOddSign(source);
}

bool HasNameOfOneLetter(const SourceStatement& source, const Surroundings&) {
  const string_view text = source.upper;
  if (BeginsWith(text, "SUB ")) return false;
  const size_t first = BeginsWith(text, "CALL ") ? text.find('(') : 0;  // the name that is called may have one letter
  if (first == string_view::npos) return false;
  for (size_t at = first; ++at + 1 < text.size();) {
    const bool begins = IsOperator(text[at - 1]) || text[at - 1] == '(';
    if (begins && text[at + 1] == '(' && !IsOperator(text[at]) && !IsIn("()\"|", text[at])) return true;
  }
  return false;
}

// The text literal that ends before or begins at [at] of the statement, without its quotes.
std::string LiteralBeside(const std::string& text, size_t at, bool before) {
  const size_t other = before ? text.rfind('"', at - 1) : text.find('"', at + 1);
  if (other == std::string::npos) return {};
  return before ? text.substr(other + 1, at - other - 1) : text.substr(at + 1, other - at - 1);
}

bool ComparesTexts(const SourceStatement& source, const Surroundings&) {
  const std::string& text = source.statement.text;
  for (size_t at = 1; at + 1 < source.upper.size(); ++at) {
    if (!IsIn("<>", source.upper[at])) continue;
    if (source.upper[at - 1] == '<' || source.upper[at + 1] == '>') continue;  // unequal
    const size_t behind = at + 1 + (source.upper[at + 1] == '=');
    if (source.upper[at - 1] == '"' && !IsNumeric(LiteralBeside(text, at - 1, true))) return true;
    if (source.upper[behind] == '"' && !IsNumeric(LiteralBeside(text, behind, false))) return true;
  }
  return false;
}

bool IsTwinEnd(const SourceStatement&, const Surroundings& around) {
  return around.ClosedTwin();
}

bool IsSubInOpenPiece(const SourceStatement& source, const Surroundings& around) {
  return BeginsWithOneOf(source.upper, {"END SUB", "END FUNCTION"}) && around.StaysOpen(source.piece);
}

// An assignment to the end of a name, behind its "_", finds the name.
bool HidesAnotherName(const SourceStatement& source, const Surroundings& around) {
  for (const std::string& name : NamesOf(source))
    for (size_t at = name.find('_'); at != std::string::npos; at = name.find('_', at + 1))
      if (around.IsName(name.substr(at + 1))) return true;
  return false;
}

bool IsArrayInLoop(const SourceStatement& source, const Surroundings& around) {
  return around.InLoop() && BeginsWith(source.upper, "DIM ") && Holds(source.upper, "()");
}

bool IsArrayInSub(const SourceStatement& source, const Surroundings& around) {
  return around.InSub() && !around.InLoop() && BeginsWith(source.upper, "DIM ") && Holds(source.upper, "()");
}

struct OddRule {
  bool (*applies)(const SourceStatement&, const Surroundings&);
  const char* does;
  const char* write;
};

constexpr OddRule kRules[] = {
    {CountsDown, "a descending FOR runs until its variable is 0, whatever its limit",
     "count with WHILE: i=start, WHILE i>=limit, i=i-1 as the last statement, WEND"},
    {CountsDownUnseen, "a FOR whose step does not begin with its \"-\" counts up: it runs no pass at all",
     "count with WHILE: i=start, WHILE i>=limit, i=i-1 as the last statement, WEND"},
    {HasEmptyStep, "a FOR whose STEP has no value never ends", "the value behind STEP, or no STEP"},
    {IsTwinLoop,
     "a loop beside another one inside a loop has the other's label: its end jumps back into that one for ever",
     "put it into a SUB that is defined before the outer loop"},
    {IsUnsoughtLabel, "a single word is a label, and no GOTO names it: nothing happens",
     "a statement with its blank (END IF) or a command with its brackets (SHOWPLAN())"},
    {IsReservedWord, "a word of the language, or the end of one, is no label: it does nothing, and no GOTO finds it",
     "a label of another name, or the whole statement"},
    {IsLetterAlone, "a single letter is dropped", "a label of two letters or more"},
    {HasMoreBehindIf, "what stands behind the \":\" of a one-line IF runs in any case",
     "IF ... THEN at the end of its line, a line for each statement, END IF"},
    {LostTo, "the blank behind TO goes before a sign or bracket, and the FOR is a syntax error",
     "a limit that begins with a name or a digit: 0-1 for -1"},
    {LostWhile, "the blank behind WHILE goes before a sign or bracket, and no loop begins",
     "a condition that begins with a name or a digit"},
    {LostCase, "CASE with a sign or bracket directly behind it is never compared", "the value as a text: CASE \"-1\""},
    {LostIf, "the blank behind IF goes before a sign, and there is no IF", "the condition in brackets: IF (-1<x) THEN"},
    {LostAndOr, "the blank behind AND or OR goes before a sign, and nothing is combined",
     "the value with the sign in a variable of its own"},
    {HasSignBehindOperator, "a sign behind an operator is taken for an operator: 12*-3 is 9",
     "the value with the sign in a variable of its own"},
    {HasNameOfOneLetter, "an array or function whose name has one letter cannot be read",
     "a name of two letters or more"},
    {ComparesTexts,
     "texts of different length are compared as numbers, so that a text is less than any other and greater",
     "STRCOMP(a,b)<0, or >0"},
    {IsArrayInLoop, "DIM of an array in a loop takes another of the twenty arrays at each pass and empties none",
     "DIM before the loop, ERASE of the array in it"},
    {IsTwinEnd, "two loops over text that are closed in one piece of code never end",
     "each end of a loop in a piece of its own"},
    {IsSubInOpenPiece, "a SUB or FUNCTION in a piece of code that leaves an IF or a loop open reports an error",
     "it in a piece of its own, before the others"},
    {HidesAnotherName, "an assignment to what stands behind the \"_\" of this name sets this one",
     "names without \"_\""},
    {IsArrayInSub, "DIM of an array in a SUB or FUNCTION takes another of the twenty arrays at each call",
     "DIM before the SUB, ERASE of the array in it"},
};

constexpr char kLostToComment[] = "what stands before a /* */ comment is dropped with it";
constexpr char kBeforeComment[] = "the comment on a line of its own, or behind an apostrophe";

}  // namespace

std::vector<OddPlace> CheckScript(const ScriptSource& source) {
  const std::vector<SourceStatement> all = SourceStatements(source.pieces);
  std::vector<OddPlace> places;
  Surroundings around(all);
  for (const SourceStatement& statement : all) {
    around.Pass(statement);
    if (statement.lost_line != 0)
      places.push_back({source.PlaceOf(statement.lost_line), kLostToComment, kBeforeComment});
    for (const OddRule& rule : kRules)
      if (rule.applies(statement, around)) places.push_back({source.PlaceOf(statement.line), rule.does, rule.write});
  }
  return places;
}

}  // namespace corvane::script
