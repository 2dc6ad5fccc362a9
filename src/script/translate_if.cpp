#include "runtime/strings.h"
#include "script/if_statement.h"
#include "script/translation.h"

namespace corvane::script {

using runtime::Left;
using runtime::Mid;

long ThenColumn(std::string_view upper_statement) {
  const long behind_bracket = runtime::InStr(upper_statement, ")THEN");
  return behind_bracket > 0 ? behind_bracket : runtime::InStr(upper_statement, " THEN");
}

std::string Translation::IfLabel() const {
  return "_I" + std::to_string(Count().ifDepth);
}

// The statement goes on as an IF; the columns found in it still count from the ELSEIF.
bool Translation::ElseIf() {
  EmitJump("GOTN " + IfLabel());
  EmitLabel(IfLabel());
  SetStatement(Mid(statement_.text, 5));
  from_else_if_ = true;
  return false;
}

bool Translation::Else() {
  EmitJump("GOTN " + IfLabel());
  Emit(0, 0, "ELSE:");
  EmitLabel(IfLabel());
  return true;
}

bool Translation::EndIf() {
  const std::string label = IfLabel();
  if (--Count().ifDepth < 0) {
    Report("End If operator error.");
    return true;
  }
  Emit(0, 0, "END IF:");
  EmitLabel(label);
  return true;
}

bool Translation::If() {
  const long then_column = ThenColumn(upper_);
  if (then_column < 5) return false;
  std::string tail = Mid(statement_.text, then_column + 5);
  if (upper_.compare(static_cast<size_t>(then_column) + 4, 14, " EXIT FUNCTION") == 0) {
    Push(tail + ":End If:");
    tail.clear();
    SetStatement(Left(statement_.text, then_column + 4) + ":");
  }
  if (tail.size() < 2) {
    BlockIf();
  } else {
    OneLineIf(then_column, std::move(tail));
  }
  return true;
}

void Translation::BlockIf() {
  if (!from_else_if_) ++Count().ifDepth;
  Emit(0, 0, statement_.text);
  EmitJump("GO " + IfLabel());
}

// A program with a chain of more than some fifty IFs on one line cannot be read back, as its statements are too long;
// one of many thousands would also take the translator minutes.
bool Translation::IsTooDeep() {
  if (pieces_.size() <= kDeepestIf) return false;
  Report("IFs are nested too deep.");
  return state_.stopFlag = true;
}

// The blank behind THEN is no part of the tail; the cleaning leaves none before "=". What the tail was cut from is not
// kept while it is translated.
void Translation::OneLineIf(long then_column, std::string tail) {
  if (IsTooDeep()) return;
  const bool blank = tail.front() != '=';
  if (blank) tail.erase(0, 1);
  statement_.text = Left(statement_.text, then_column + (blank ? 5 : 4));
  pieces_.back().waiting = std::move(statement_);
  if (pieces_.back().unread.Empty()) pieces_.back().unread = UnreadText();
  pieces_.emplace_back(std::move(tail));
}

void Translation::EndOneLineIf(std::string_view flat) {
  const Statement statement = std::move(pieces_.back().waiting);
  Emit(statement.eqPos, statement.parenPos, statement.text + std::string(flat));
}

}  // namespace corvane::script
