#include "script/commands.h"

#include <algorithm>

#include "runtime/strings.h"
#include "script/arguments.h"
#include "script/frm_lib.h"
#include "script/get_params.h"
#include "script/marks.h"
#include "script/numbers.h"
#include "script/run_code.h"
#include "script/script_run.h"

namespace corvane::script {

namespace {

constexpr double kMostSlots = 1000;
constexpr double kLargest = 2147483647;

ScriptState& State(CommandUse& use) {
  return use.engine.state;
}

double NumberIn(const std::string& text) {
  const auto number = NumberOf(text);
  if (!number) throw runtime::Error(runtime::kTypeMismatch);
  return *number;
}

void Push(CommandUse& use) {
  const size_t end = use.value.find(listSep);
  if (end != std::string::npos) PushSlot(State(use), use.value.substr(0, end)) = Text(use.value.substr(end + 1));
}

// The rest of the form is for the dialog to judge.
void Modify(CommandUse& use) {
  constexpr size_t kShortestTarget = 1;
  const size_t end = use.value.find(listSep);
  if (end == std::string::npos || end < kShortestTarget)
    return use.engine.errors.ReportError("Use Modify(\"MyForm.myTxt\",\"default=string\") syntax");
  use.around.forms.Modify(use.lib, use.value);
}

void Show(CommandUse& use) {
  use.lib.RunDialog(use.value, true);
}

void NoShow(CommandUse& use) {
  use.lib.RunDialog(use.value, false);
}

void SetClipboard(CommandUse& use) {
  host::Clipboard& clipboard = use.around.services.Clipboard;
  runtime::PassOverErrors([&] { clipboard.Clear(); });
  runtime::PassOverErrors([&] { clipboard.SetText(use.value); });
}

void MousePointer(CommandUse& use) {
  const auto wait = BooleanOf(use.value);
  if (!wait) throw runtime::Error(runtime::kTypeMismatch);
  use.around.services.Screen.SetMousePointer(*wait ? host::vbHourglass : host::vbDefault);
}

void GoCodeLine(CommandUse& use) {
  if (use.around.changes.GoCodeLine(use.engine.errors, use.value)) State(use).stopFlag = true;
}

void Print(CommandUse& use) {
  State(use).printText.append(use.value).append(runtime::kCrLf);
}

void CStr(CommandUse& use) {
  State(use).lastValue = Text(use.value);
}

void Shell(CommandUse& use) {
  State(use).lastValue = use.around.platform.Shell(use.value);
}

void PutParams(CommandUse& use) {
  const std::string mark(1, labelMark);
  use.around.paramExchange = mark + runtime::Replace(use.value, std::string(1, listSep), mark) + mark;
  State(use).scriptParams = use.value;
}

void Run(CommandUse& use) {
  State(use).restartFlag = State(use).stopFlag = true;
  State(use).nextScript = use.value;
}

void MsgBox(CommandUse& use) {
  use.around.services.Prompts.MsgBox(use.value, host::vbExclamation);
}

void SetSelStart(CommandUse& use) {
  State(use).stopFlag = true;
  const double start = NumberIn(use.value);
  use.around.window.SetSelStart(static_cast<long>(std::clamp(start, 0.0, kLargest)));
}

void Unload(CommandUse& use) {
  if (!State(use).dialogActive || State(use).subDepth < 1) return;
  use.run.CutToEndSub();
  use.around.forms.CloseDlg(use.value);
}

constexpr CommandRow kCommands[] = {
    {"ERASE", "array", "Empties the array.", nullptr},
    {"REPLACE", "old, new", "Replaces old by new in the selected code.", nullptr},
    {"CREATE", "class, name, [container]", "Makes a component or a control.", nullptr},
    {"SHOWPLAN", "", "From here on the statements are put out, not run.", nullptr},
    {"DEBUG", "names", "Goes on statement by statement, watching the names.", nullptr},
    {"GETPARAMS", "names", "The variables take the script's parameters, in order.", nullptr},
    {"PUSH", "number, value", "Keeps the value of a SELECT CASE.", Push},
    {"KILL", "file", "Deletes the file.", [](CommandUse& use) { use.around.platform.Kill(use.value); }},
    {"MODIFY", "form.control, key=value", "Changes a control of a dialog.", Modify},
    {"SHOW", "form", "Shows the dialog of a FORM block, given as text or by its name.", Show},
    {"NOSHOW", "form", "Builds the dialog without showing it.", NoShow},
    {"REMOVE", "address", "Removes a control or a component.",
     [](CommandUse& use) { use.around.changes.Remove(use.engine.errors, use.value); }},
    {"SETCLIPBOARD", "text", "Puts the text on the clipboard.", SetClipboard},
    {"REPLACELINE", "component, line or text, new", "Replaces a line of code.",
     [](CommandUse& use) { use.around.changes.ReplaceLine(use.engine.errors, use.value); }},
    {"MOUSEPOINTER", "wait", "The wait cursor, or the normal one.", MousePointer},
    {"DELETECODE", "component, first, count", "Deletes lines of code.",
     [](CommandUse& use) { use.around.changes.DeleteCode(use.engine.errors, use.value); }},
    {"WRITE", "component, [line]", "Inserts the result text into the code.",
     [](CommandUse& use) {
       use.around.changes.WriteResult(use.engine.errors, use.value, State(use).resultText.Get());
     }},
    {"GOCODELINE", "component, line", "Ends the script and shows the line.", GoCodeLine},
    {"INSERTCODE", "component, text, line", "Inserts the text into the code.",
     [](CommandUse& use) { use.around.changes.InsertCode(use.engine.errors, use.value); }},
    {"OPEN", "component", "Opens the component's code.",
     [](CommandUse& use) { use.around.changes.Open(use.engine.errors, use.value); }},
    {"PRINT", "value", "Adds a line to the print box, which is shown at the end.", Print},
    {"CSTR", "value", "The value as text is what a function returns.", CStr},
    {"SHELL", "program", "Starts the program.", Shell},
    {"SCRIPTFILE", "path", "The file that the workshop saves to.",
     [](CommandUse& use) { use.around.window.SetScriptFile(use.value); }},
    {"PUTPARAMS", "values", "The parameters for the script that called this one.", PutParams},
    {"SCRIPTRUN", "file, [parameters]", "Runs another script, with stores of its own.",
     [](CommandUse& use) { ScriptRun(use); }},
    {"RUN", "file", "Ends this script and starts another.", Run},
    {"EXECUTE", "file", "Opens the file with its program.",
     [](CommandUse& use) { use.around.platform.Open(use.value); }},
    {"MSGBOX", "message", "A message box.", MsgBox},
    {"PUTCODE", "text", "Puts the text into the workshop's edit box.",
     [](CommandUse& use) { use.around.window.PutCode(use.value); }},
    {"SETSELSTART", "position", "Ends the script with the cursor there in the workshop's edit box.", SetSelStart},
    {"UNLOAD", "result", "Closes the dialog whose event runs.", Unload},
};

const CommandRow* FindCommand(std::string_view keyword) {
  for (const CommandRow& row : kCommands)
    if (row.keyword == keyword) return &row;
  return nullptr;
}

// [argument] ends in ":". Its last ")" goes if nothing else stands behind it.
std::string WithoutBracket(std::string argument) {
  if (!argument.empty() && argument.back() == ':') argument.pop_back();
  if (!argument.empty() && argument.back() == ')') argument.pop_back();
  return argument;
}

}  // namespace

std::span<const CommandRow> CommandTable() {
  return kCommands;
}

Cell& PushSlot(ScriptState& state, const std::string& slot) {
  const double number = NumberIn(slot);
  if (number < 0 || number > kMostSlots) throw runtime::Error(runtime::kSubscriptOutOfRange);
  const auto place = static_cast<size_t>(number);
  if (state.pushSlots.size() <= place) state.pushSlots.resize(place + 1);
  return state.pushSlots[place];
}

void Commands::Run(Engine& engine, const std::string& statement, long paren, CodeRun& run) {
  constexpr size_t kShortest = 2;
  const std::string keyword = runtime::UCase(runtime::Left(statement, paren - 1));
  if (RunSpecial(engine, keyword, statement)) return;
  const std::string text = runtime::Mid(statement, paren + 1);
  const std::string argument = WithoutBracket(text);
  if (keyword == "WRITE" && text == "):")
    return around_.changes.WriteResult(engine.errors, "", engine.state.resultText.Get());
  if (text.size() < kShortest) return;
  if (argument.empty()) return engine.errors.ReportError("Must be parameter");
  if (keyword == "GETPARAMS") return GetParamsInto(argument, engine.state, engine.store);
  engine.expressions.EvalExpression(argument);
  if (engine.state.stopFlag) return;
  const CommandRow* row = FindCommand(keyword);
  if (row == nullptr) return engine.errors.ReportError(statement + " Unknown Function");
  CommandUse use{engine, around_, lib_, run, TextOf(engine.state.lastValue)};
  row->act(use);
}

// Those whose argument is not one expression. False for all others.
bool Commands::RunSpecial(Engine& engine, const std::string& keyword, const std::string& statement) {
  constexpr long kDebug = 7;
  if (keyword == "ERASE") {
    engine.expressions.EvalExpression(statement);
  } else if (keyword == "REPLACE" || keyword == "CREATE") {
    RunWithTwo(engine, keyword, statement, WithoutBracket(runtime::Mid(statement, runtime::Len(keyword) + 2)));
  } else if (keyword == "SHOWPLAN") {
    engine.state.planOn = true;
  } else if (keyword == "DEBUG") {
    if (engine.state.wizardMode) return true;
    engine.state.debugWatch = runtime::Mid(statement, kDebug);
    engine.state.debugOn = true;
  } else {
    return false;
  }
  return true;
}

void Commands::RunWithTwo(Engine& engine, const std::string& keyword, const std::string& statement,
                          std::string argument) {
  if (argument.empty()) return;
  const std::string first = NextExprPart(argument, false);
  if (first.empty() || argument.empty()) return engine.errors.ReportError(statement + " Function parameters error");
  engine.expressions.EvalExpression(first);
  const std::string one = TextOf(engine.state.lastValue);
  if (!engine.state.stopFlag) engine.expressions.EvalExpression(argument);
  if (engine.state.stopFlag) return;
  const std::string two = TextOf(engine.state.lastValue);
  keyword == "CREATE" ? around_.changes.Create(engine.errors, one, two)
                      : around_.changes.Replace(engine.errors, one, two);
}

}  // namespace corvane::script
