#include "script/statement_scan.h"

#include <algorithm>

#include "runtime/strings.h"
#include "script/flat_items.h"
#include "script/marks.h"
#include "script/operators.h"

namespace corvane::script {

namespace {

using runtime::Left;
using runtime::Trim;

constexpr std::string_view kDeciding = "+-<>*/\\()|:& =";  // the first one of them decides what the statement is
constexpr std::string_view kAssigning = "+-*/&";           // before "=": y+=2 is an assignment
constexpr char kContinuation[] = {'_', lineMark, '\0'};

bool IsIn(std::string_view set, char c) {
  return set.find(c) != std::string_view::npos;
}

// Rules are tried in the order of Look; a column is a place in [text_], where continuations are taken out already.
class Scan {
 public:
  Scan(std::string_view source, ScriptState& state, ErrorReport& report)
      : source_(source), state_(state), report_(report) {}

  ScanEnd Run(Statement& statement) {
    while (!ended_) {
      if (at_ == source_.size()) {
        in_string_ = false;
        if (in_comment_) return ScanEnd::kOpenComment;
        break;
      }
      Look(source_[at_]);
      if (state_.stopFlag) return ScanEnd::kStopped;
    }
    statement_.text = Trim(text_) + ':';
    if (opened_ != closed_) return ReportBrackets();
    statement = std::move(statement_);
    return ScanEnd::kStatement;
  }
  // With the character that ended the statement.
  size_t Used() const { return at_ + 1; }

 private:
  void Look(char c) {
    if (c == '"') {
      in_string_ = !in_string_;
      Take();
    } else if (in_string_) {
      if (c == lineMark) ReportString();
      Take();
    } else if (in_comment_ || Stands("/*")) {
      LookInComment();
    } else if (c == ':' || c == lineMark) {
      ended_ = true;
    } else if (c != '(' || !JumpOverVar()) {
      LookInCode(c);
    }
  }

  void LookInComment() {
    if (in_comment_ && Stands("*/")) return DropComment();
    in_comment_ = true;
    Take();
  }

  // What stood before the comment goes with it. The character behind it is not looked at.
  void DropComment() {
    in_comment_ = false;
    text_.clear();
    at_ += 2;
    if (Stands(":") || Stands({&lineMark, 1})) ++at_;
    statement_.start = at_;
    if (at_ < source_.size()) Take();
  }

  void LookInCode(char c) {
    opened_ += c == '(';
    closed_ += c == ')';
    if (c == ' ' && StandsAt(at_ + 1, kContinuation)) return void(at_ += 3);
    size_t next = at_ + 1;
    if (c == '+' || c == '&')
      while (StandsAt(next, kContinuation)) next += 2;
    statement_.operatorMet = statement_.operatorMet || IsOperator(c);
    if (statement_.eqPos == 0 && Decide(c, next)) return;
    text_ += c;
    at_ = next;
  }

  // Whether it jumped.
  bool Decide(char c, size_t next) {
    if (c == '=') {
      statement_.eqPos = Column();
      return Stands("=[[") && JumpTo(source_.find("]]", at_));
    }
    if (!IsIn(kDeciding, c) || (IsIn(kAssigning, c) && StandsAt(next, "="))) return false;
    statement_.eqPos = -1;
    if (c == '(') statement_.parenPos = Column();
    return false;
  }

  // VAR(x)=1: the name that x holds is assigned to, so the bracket decides nothing.
  bool JumpOverVar() { return Column() == 4 && runtime::UCase(text_) == "VAR" && JumpTo(source_.find(')', at_)); }

  // Takes all up to and with [place]; false where there is none.
  bool JumpTo(size_t place) {
    if (place == std::string_view::npos) return false;
    text_ += source_.substr(at_, place + 1 - at_);
    at_ = place + 1;
    return true;
  }

  void Take() { text_ += source_[at_++]; }
  bool StandsAt(size_t place, std::string_view text) const {
    return place < source_.size() && source_[place] == text.front() && source_.compare(place, text.size(), text) == 0;
  }
  bool Stands(std::string_view text) const { return StandsAt(at_, text); }
  long Column() const { return static_cast<long>(text_.size()) + 1; }

  void ReportString() {
    SetCurrentLine(Trim(text_) + ':');
    report_.ReportError("There is not a pair for \" symbol.");
  }

  ScanEnd ReportBrackets() {
    SetCurrentLine(statement_.text);
    report_.ReportError("Brackets Error.");
    return state_.stopFlag ? ScanEnd::kStopped : ScanEnd::kDropped;
  }

  // The statement, and of what comes behind it as much as fits into a line of the listing.
  void SetCurrentLine(const std::string& statement) {
    const std::string_view rest = source_.substr(std::min(Used(), source_.size()));
    state_.currentLine = "0000" + FormatField3(statement.size()) + statement + "0000030" + Left(rest, 30) + ":";
  }

  std::string_view source_;
  size_t at_ = 0;
  std::string text_;
  Statement statement_;
  bool in_string_ = false, in_comment_ = false, ended_ = false;
  long opened_ = 0, closed_ = 0;
  ScriptState& state_;
  ErrorReport& report_;
};

}  // namespace

ScanEnd ScanStatement(UnreadText& unread, Statement& statement, ScriptState& state, ErrorReport& report) {
  Scan scan(unread.Text(), state, report);
  const ScanEnd end = scan.Run(statement);
  unread.Cut(scan.Used());
  return end;
}

}  // namespace corvane::script
