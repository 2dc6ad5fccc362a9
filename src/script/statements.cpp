// The table of statements, and what the plain ones do.
#include <algorithm>
#include <array>

#include "runtime/strings.h"
#include "script/arguments.h"
#include "script/commands.h"
#include "script/marks.h"
#include "script/run_code.h"

namespace corvane::script {

using runtime::BeginsWith;

namespace {

using Statement = const ProgramItem&;

// Whether the statement begins with one of [words], in any case.
template <const char*... words>
bool Begins(Statement statement) {
  return (BeginsWith(statement.upper, words) || ...);
}

// Whether it is one of [words].
template <const char*... words>
bool Is(Statement statement) {
  return ((statement.upper == words) || ...);
}

constexpr char kSub[] = "SUB ", kEndSubWord[] = "END SUB", kGoTf[] = "GOTF ", kCase[] = "CASE ", kGoTb[] = "GOTB ",
               kGoTn[] = "GOTN ", kGo[] = "GO ", kGoTo[] = "GOTO ", kExitSub[] = "EXIT SUB", kDim[] = "DIM ",
               kCall[] = "CALL ", kEndCode[] = "END CODE:", kExit[] = "EXIT:", kExitFor[] = "EXIT FOR:",
               kExitWhile[] = "EXIT WHILE:", kDebug[] = "DEBUG:", kStopEx[] = "STOPEX:", kStop[] = "STOP:";

constexpr size_t kCaseLength = 5, kDimLength = 4;

}  // namespace

const CodeRun::Row CodeRun::kRows[] = {
    {Begins<kSub>, false, &CodeRun::BeginDefinition},
    {Begins<kEndSubWord>, true, &CodeRun::ReturnFromSub},
    {Begins<kGoTf>, false, &CodeRun::JumpForward},
    {Begins<kCase>, false, &CodeRun::TestCase},
    {Begins<kGoTb>, false, &CodeRun::JumpBackward},
    {Begins<kGoTn>, false, &CodeRun::JumpToEndIf},
    {Begins<kGo>, false, &CodeRun::JumpUnlessTrue},
    {Begins<kGoTo>, false, &CodeRun::GoTo},
    {Begins<kExitSub>, true, &CodeRun::ExitSub},
    {[](Statement statement) { return *statement.eq == 1; }, false, &CodeRun::Output},
    {Begins<kDim>, false, &CodeRun::Dim},
    {Begins<kCall>, false, &CodeRun::Call},
    {[](Statement statement) { return *statement.paren < 1 && Is<kEndCode>(statement); }, false, &CodeRun::EndCode},
    {Is<kExit>, false, &CodeRun::Exit},
    {Is<kExitFor, kExitWhile>, false, &CodeRun::Ignore},
    {Is<kDebug>, false, &CodeRun::Debug},
    {Is<kStopEx>, false, &CodeRun::StopAndShowWide},
    {Is<kStop>, false, &CodeRun::StopAndShow},
    {[](Statement statement) { return *statement.paren < 1 && *statement.eq < 2; }, false, &CodeRun::Plain},
    {[](Statement statement) { return *statement.paren < 1; }, false, &CodeRun::Assign},
    {[](Statement) { return true; }, false, &CodeRun::InBrackets},
};

// The value is slot, listSep, values; the slot's own must be one of them, exactly.
void CodeRun::TestCase(ProgramItem& statement) {
  engine_.expressions.EvalExpression(statement.text.substr(kCaseLength));
  const std::string value = TextOf(state_.lastValue);
  const size_t end = value.find(listSep);
  if (end == std::string::npos) return;
  state_.condFlag = false;
  const std::string wanted = TextOf(PushSlot(state_, value.substr(0, end)));
  state_.condFlag = runtime::Holds(value.substr(end) + listSep, listSep + wanted + listSep);
}

void CodeRun::Output(ProgramItem& statement) {
  std::string text = runtime::Mid(statement.text, 2);
  while (!text.empty()) {
    const std::string part = NextExprPart(text, true);
    engine_.expressions.EvalExpression(part);
    state_.resultText += TextOf(state_.lastValue);
  }
}

void CodeRun::Dim(ProgramItem& statement) {
  engine_.assignment.DeclareVars("DIMM" + std::string(statement.text.substr(kDimLength)));
}

void CodeRun::EndCode(ProgramItem&) {
  state_.stopFlag = true;
}

void CodeRun::Exit(ProgramItem&) {
  state_.stopFlag = state_.wizardMode = true;
  state_.resultText.clear();
}

void CodeRun::Debug(ProgramItem&) {
  if (state_.wizardMode) return;
  state_.debugWatch.clear();
  state_.debugOn = true;
}

void CodeRun::StopAndShowWide(ProgramItem&) {
  ShowResult(true);
}

void CodeRun::StopAndShow(ProgramItem&) {
  ShowResult(false);
}

void CodeRun::ShowResult(bool wide) {
  engine_.result.NewWidth(wide);
  engine_.result.DisplayRes(state_.resultText, "Result of Execution", "Result of Execution...");
  state_.stopFlag = true;
}

// Errors are passed over statement by statement.
void CodeRun::Plain(ProgramItem& statement) {
  if (statement.upper == "ELSE:" || BeginsWith(statement.upper, "ELSEIF ") || statement.upper == "END IF:") return;
  if (BeginsWith(statement.upper, "IF ") || BeginsWith(statement.upper, "IF(")) return If(statement);
  Other(statement);
}

void CodeRun::Assign(ProgramItem& statement) {
  engine_.assignment.Assign(std::string(statement.text), *statement.eq);
}

void CodeRun::InBrackets(ProgramItem& statement) {
  const std::string text(statement.text);
  if (engine_.assignment.AssignElement(text, *statement.paren)) return;
  if (statement.upper.substr(0, static_cast<size_t>(*statement.paren - 1)) == "IF") return If(statement);
  engine_.commands.Run(engine_, text, *statement.paren, *this);
}

// The condition keeps the bracket that stands before THEN.
void CodeRun::If(ProgramItem& statement) {
  constexpr size_t kIf = 2, kThen = 5;
  const std::string_view text = statement.text.substr(std::min(kIf, statement.text.size()));
  if (text.empty()) return Other(statement);
  if (!statement.if_parts) {
    const std::string upper = runtime::UCase(text);
    const size_t bracket = upper.find(")THEN");
    const size_t then = bracket != std::string::npos ? bracket : upper.find(" THEN");
    if (then == std::string::npos || then == 0) return Report("Syntax Error: " + std::string(statement.text));
    const std::string tail = runtime::Trim(text.substr(then + kThen));
    IfParts parts{runtime::Trim(text.substr(0, bracket != std::string::npos ? then + 1 : then)), nullptr};
    if (!tail.empty() && tail[0] != ':') parts.tail = std::make_shared<FlatProgram>(tail);
    statement.if_parts = std::move(parts);
  }
  const IfParts& parts = *statement.if_parts;
  runtime::PassOverErrors([&] { state_.condFlag = engine_.expressions.EvalExpression(parts.condition); });
  if (parts.tail == nullptr) return;
  if (state_.condFlag) unread_.Push(parts.tail);
  state_.condFlag = false;
}

void CodeRun::Other(ProgramItem& statement) {
  constexpr std::string_view kDecides = "+-=()*/ ,";
  constexpr size_t kLooksAt = 9, kShortest = 3;
  const std::string_view text = statement.text;
  if (text.substr(0, kLooksAt).find_first_of(kDecides) == std::string_view::npos) return;
  const std::string_view sign = text.size() > kShortest ? text.substr(text.size() - 3, 2) : "";
  if (sign == "++" || sign == "--") {
    const std::string name(text.substr(0, text.size() - 3));
    return unread_.Push(engine_.pieces.TranslateStatement(name + '=' + name + sign[0] + "1:"));
  }
  Report(std::string(text) + " *** Unknown function ***");
}

}  // namespace corvane::script
