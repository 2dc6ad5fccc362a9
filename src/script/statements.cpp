// The table of statements, and what the plain ones do.
#include <algorithm>

#include "runtime/find_text.h"
#include "runtime/strings.h"
#include "script/arguments.h"
#include "script/commands.h"
#include "script/keywords.h"
#include "script/marks.h"
#include "script/run_code.h"

namespace corvane::script {

using runtime::BeginsWith;

namespace {

using Statement = const ProgramItem&;
using Word = std::string_view;

bool Begins(Statement statement, Word word) {
  return BeginsWith(statement.upper, word);
}

bool Is(Statement statement, Word word) {
  return statement.upper == word;
}

bool IsWithoutBracket(Statement statement, Word word) {
  return *statement.paren < 1 && Is(statement, word);
}

bool IsOutput(Statement statement, Word) {
  return *statement.eq == 1;
}

bool IsPlain(Statement statement, Word) {
  return *statement.paren < 1 && *statement.eq < 2;
}

bool IsAssignment(Statement statement, Word) {
  return *statement.paren < 1;
}

bool IsAny(Statement, Word) {
  return true;
}

constexpr size_t kCaseLength = 5, kDimLength = 4;
constexpr bool kInSub = true, kAnywhere = false;

}  // namespace

const CodeRun::Row CodeRun::kRows[] = {
    {"SUB ", Begins, kAnywhere, &CodeRun::BeginDefinition, "SUB name([argument, ...])",
     "Defines a SUB by being run over; the first of a name stays."},
    {"END SUB", Begins, kInSub, &CodeRun::ReturnFromSub, "END SUB", "Goes back behind the CALL; the locals are gone."},
    {"GOTF ", Begins, kAnywhere, &CodeRun::JumpForward, "GOTF label", "Made for loops: jumps forward to the label."},
    {"CASE ", Begins, kAnywhere, &CodeRun::TestCase, "CASE slot, value[, value ...]",
     "Made for CASE: whether the value kept in the slot is one of the others."},
    {"GOTB ", Begins, kAnywhere, &CodeRun::JumpBackward, "GOTB label",
     "Made for loops: jumps to the label, looked for from the start."},
    {"GOTN ", Begins, kAnywhere, &CodeRun::JumpToEndIf, "GOTN label",
     "Made for ELSE and CASE: jumps forward to the END IF that the label follows."},
    {"GO ", Begins, kAnywhere, &CodeRun::JumpUnlessTrue, "GO label",
     "Made for IF and CASE: jumps forward to the label if the test before it failed."},
    {"GOTO ", Begins, kAnywhere, &CodeRun::GoTo, "GOTO label",
     "Jumps to the label: forward if it follows, else the search begins anew at the start."},
    {"EXIT SUB", Begins, kInSub, &CodeRun::ExitSub, "EXIT SUB", "Goes on at the END SUB of the SUB that runs."},
    {"=", IsOutput, kAnywhere, &CodeRun::Output, "=value[&value ...]", "Puts out the values, one behind the other."},
    {"DIM ", Begins, kAnywhere, &CodeRun::Dim, "DIM name[, array() ...]", "Declares variables, and arrays with ()."},
    {"CALL ", Begins, kAnywhere, &CodeRun::Call, "CALL name([value, ...])", "Runs a SUB that was defined before."},
    {"END CODE:", IsWithoutBracket, kAnywhere, &CodeRun::EndCode, "END CODE", "Ends the script."},
    {"EXIT:", Is, kAnywhere, &CodeRun::Exit, "EXIT", "Ends the script and drops its result."},
    {"EXIT FOR:", Is, kAnywhere, &CodeRun::Ignore, "EXIT FOR", "Outside a loop: nothing."},
    {"EXIT WHILE:", Is, kAnywhere, &CodeRun::Ignore, "EXIT WHILE", "Outside a loop: nothing."},
    {"DEBUG:", Is, kAnywhere, &CodeRun::Debug, "DEBUG", "Goes on statement by statement in the debug window."},
    {"STOPEX:", Is, kAnywhere, &CodeRun::StopAndShowWide, "STOPEX",
     "Ends the script and shows its result in the wide window."},
    {"STOP:", Is, kAnywhere, &CodeRun::StopAndShow, "STOP", "Ends the script and shows its result."},
    {"", IsPlain, kAnywhere, &CodeRun::Plain, "variable++", "Adds 1 to the variable; variable-- takes 1 off it."},
    {"", IsAssignment, kAnywhere, &CodeRun::Assign, "variable=value",
     "Sets a variable or a property; with += -= *= /= &= to what it is and the value."},
    {"", IsAny, kAnywhere, &CodeRun::InBrackets, "array(index)=value", "Sets an element of an array, counted from 1."},
};

std::vector<Keyword> StatementKeywords() {
  std::vector<Keyword> keywords;
  for (const CodeRun::Row& row : CodeRun::kRows) keywords.push_back(KeywordOf(row.word, row.shape, row.help));
  return keywords;
}

// The value is slot, listSep, values; the slot's own must be one of them, exactly.
void CodeRun::TestCase(ProgramItem& statement) {
  engine_.expressions.EvalExpression(statement.text.substr(kCaseLength));
  const std::string value = TextOf(state_.lastValue);
  const size_t end = value.find(listSep);
  if (end == std::string::npos) return;
  state_.condFlag = false;
  const std::string wanted = TextOf(PushSlot(state_, value.substr(0, end)));
  const std::string values = value.substr(end) + listSep;
  state_.condFlag = runtime::FindFirst(values, listSep + wanted + listSep) != std::string::npos;
}

void CodeRun::Output(ProgramItem& statement) {
  std::string text = runtime::Mid(statement.text, 2);
  while (!text.empty() && state_.resultText.Size() <= engine_.longest_text) {
    const std::string part = NextExprPart(text, true);
    engine_.expressions.EvalExpression(part);
    state_.resultText.Append(TextOf(state_.lastValue));
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
  state_.resultText = {};
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
  engine_.result.DisplayRes(std::string(state_.resultText.Get()), "Result of Execution", "Result of Execution...");
  state_.stopFlag = true;
}

// Errors are passed over statement by statement.
void CodeRun::Plain(ProgramItem& statement) {
  if (statement.upper == "ELSE:" || BeginsWith(statement.upper, "ELSEIF ") || statement.upper == "END IF:") return;
  if (BeginsWith(statement.upper, "IF ") || BeginsWith(statement.upper, "IF(")) return If(statement);
  Other(statement);
}

void CodeRun::Assign(ProgramItem& statement) {
  engine_.assignment.Assign(statement.text, *statement.eq);
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
