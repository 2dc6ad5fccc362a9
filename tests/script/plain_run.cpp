#include "tests/script/plain_run.h"

#include "runtime/strings.h"
#include "runtime/variant.h"
#include "script/arguments.h"
#include "script/flat_items.h"
#include "script/marks.h"
#include "script/prepare_source.h"
#include "script/run_code.h"
#include "script/translator.h"

namespace corvane::script {

using runtime::BeginsWith;
using runtime::InStr;
using runtime::Left;
using runtime::Mid;
using runtime::UCase;

namespace {

const std::string kEnd = "0000008END SUB:";
const std::string kLine = runtime::kCrLf;

long NumberIn(const std::string& field) {
  return runtime::ToLong(field);
}

}  // namespace

void PlainLib::RunCode(std::string text) {
  Engine& engine = Parts();
  ScriptState& state = engine.state;
  state.lvalueMode = false;
  if (engine.nested_runs >= CodeRun::kDeepestRun) {
    if (!state.stopFlag) engine.errors.ReportError("Calls are nested too deep.");
    state.stopFlag = true;
    return;
  }
  text = PrepareSource(text, engine.errors);
  if (text.size() < 3) return;
  Run run;
  run.whole = run.unread = TranslateCode(text, state, engine.errors);
  engine.nested_runs++;
  runtime::PassOverErrors([&] {
    if (state.labelSearch > 0) Search(run, run.unread);
    Loop(run);
  });
  engine.nested_runs--;
}

void PlainLib::Loop(Run& run) {
  Engine& engine = Parts();
  ScriptState& state = engine.state;
  while (!run.ended) {
    if (state.stopFlag) return;
    if (run.counter > 150 || ++engine.statements_unyielded > CodeRun::kMostUnyielded) {
      engine.statements_unyielded = 0;
      engine.outside.services.Loop.DoEvents();
      run.counter = 0;
    }
    run.counter++;
    if (run.unread.size() >= 2)
      while (!run.unread.empty() && (run.unread[0] == ':' || run.unread[0] == ' ')) run.unread = Mid(run.unread, 2);
    if (run.unread.size() < 2) {
      if (run.defining) engine.errors.ReportError("End Sub not found.");
      return;
    }
    state.currentLine = Left(run.unread, 60);
    if (run.unread[0] == labelMark) {
      const long colon = InStr(run.unread, ":");
      if (colon < 2) {
        engine.errors.ReportError("Syntax Error");
        state.stopFlag = true;
        return;
      }
      if (run.defining) subs_code_ += Left(run.unread, colon);
      if (state.planOn) state.resultText.Append(Mid(run.unread, 2, colon - 1) + "  ");
      run.unread = Mid(run.unread, colon + 1);
      continue;
    }
    const long eq = NumberIn(Mid(run.unread, 1, 2)), paren = NumberIn(Mid(run.unread, 3, 2));
    const long length = NumberIn(Mid(run.unread, 5, 3));
    const std::string text = Mid(run.unread, 8, length);
    run.unread = Mid(run.unread, 8 + length);
    if (state.planOn) {
      state.resultText.Append(text + kLine);
      continue;
    }
    if (state.debugOn) {
      state.currentLine = Left(run.unread, 160);
      engine.debugger.DebugStep(text);
      if (state.stopFlag) return;
    }
    Statement(run, eq, paren, text);
  }
}

void PlainLib::Define(Run& run, long eq, long paren, const std::string& text) {
  Engine& engine = Parts();
  const std::string upper = UCase(text);
  if (Left(upper, 4) == "SUB ") engine.errors.ReportError("Sub Declaration without previous End Sub.");
  subs_code_ += FormatField2(eq) + FormatField2(paren) + FormatField3(text.size()) + text;
  if (InStr(upper, "END SUB") == 0) return;
  run.defining = false;
  if (engine.state.counters.ifDepth != 0) engine.errors.ReportError("End If operator is not found.");
  if (engine.state.counters.loopDepth != 0) engine.errors.ReportError("Next or Wend operators are not found.");
  run.whole = run.unread;
}

void PlainLib::Statement(Run& run, long eq, long paren, const std::string& text) {
  Engine& engine = Parts();
  ScriptState& state = engine.state;
  const std::string upper = UCase(text), five = Left(upper, 5);
  const auto report = [&](const std::string& message) { engine.errors.ReportError(message); };
  if (run.defining) return Define(run, eq, paren, text);
  if (Left(upper, 4) == "SUB ") {
    if (state.subDepth > 0) return;
    const std::string header = Left(Mid(upper, 5), runtime::Len(upper) - 5);
    const long bracket = InStr(header, "(");
    if (bracket < 2) return report("Sub Declaration error.");
    subs_index_ += listSep + Left(header, bracket) + runtime::CStr(runtime::Len(subs_code_) + 1) + ")";
    subs_code_ += header + kLine;
    run.defining = true;
    return;
  }
  if (Left(upper, 7) == "END SUB" && state.subDepth > 0) {
    engine.store.CutTo(saved_[state.subDepth].first, saved_[state.subDepth].second);
    state.subDepth--;
    if (state.debugSkip < 0) state.debugSkip = 0;
    const long end = InStr(chain_, std::string(1, listSep));
    if (end > 0) chain_ = Mid(chain_, end + 1);
    return;
  }
  if (five == "GOTF " || five == "GOTN ") {
    state.labelTarget = (five == "GOTN " ? "END IF:" : "") + (labelMark + Mid(text, 6));
    if (state.subDepth == 0) state.labelSearch = 1;
    return Search(run, run.unread);
  }
  if (five == "CASE ") {
    engine.expressions.EvalExpression(Mid(text, 6));
    const std::string value = TextOf(state.lastValue);
    const long end = InStr(value, std::string(1, listSep));
    if (end == 0) return;
    state.condFlag = false;
    const std::string wanted = listSep + TextOf(PushSlot(state, Left(value, end - 1))) + listSep;
    state.condFlag = InStr(Mid(value, end) + listSep, wanted) > 0;
    return;
  }
  if (five == "GOTB ") {
    state.labelTarget = labelMark + Mid(text, 6);
    return SearchBackward(run, 2);
  }
  if (Left(upper, 3) == "GO ") {
    if (state.condFlag) return;
    state.labelSearch = 0;
    state.labelTarget = labelMark + Mid(text, 4);
    if (state.subDepth == 0) state.labelSearch = 1;
    return Search(run, run.unread);
  }
  if (five == "GOTO ") {
    state.labelTarget = labelMark + UCase(Mid(text, 6));
    if (state.labelTarget.size() < 3) return report("GoTo Operator Error");
    const long place = InStr(run.unread, state.labelTarget), end = InStr(run.unread, kEnd);
    if (place > 0 && (state.subDepth == 0 || end == 0 || end > place)) return Search(run, run.unread);
    return SearchBackward(run, 3);
  }
  if (Left(upper, 8) == "EXIT SUB" && state.subDepth > 0) {
    const long end = InStr(run.unread, kEnd);
    if (end > 0) run.unread = Mid(run.unread, end);
    return;
  }
  if (eq == 1) {
    std::string rest = Mid(text, 2);
    while (!rest.empty()) {
      const std::string part = NextExprPart(rest, true);
      engine.expressions.EvalExpression(part);
      state.resultText.Append(TextOf(state.lastValue));
    }
    return;
  }
  if (Left(upper, 4) == "DIM ") return engine.assignment.DeclareVars("DIMM" + Mid(text, 5));
  if (five == "CALL ") return Call(run, text);
  if (paren < 1 && upper == "END CODE:") {
    state.stopFlag = true;
    return;
  }
  if (upper == "EXIT:") {
    state.stopFlag = state.wizardMode = true;
    state.resultText = "";
    return;
  }
  if (upper == "EXIT FOR:" || upper == "EXIT WHILE:") return;
  if (upper == "DEBUG:") {
    if (state.wizardMode) return;
    state.debugWatch = "";
    state.debugOn = true;
    return;
  }
  if (paren < 1 && eq < 2) {
    if (upper == "ELSE:" || Left(upper, 7) == "ELSEIF " || upper == "END IF:") return;
    if (Left(upper, 3) == "IF " || Left(upper, 3) == "IF(") return If(run, text);
    if (Left(text, 9).find_first_of("+-=()*/ ,") == std::string::npos) return;
    const std::string last = text.size() > 3 ? Mid(text, runtime::Len(text) - 2, 2) : "";
    if (last == "++" || last == "--") {
      const std::string name = Left(text, runtime::Len(text) - 3);
      std::string made = name + "=" + name + last[0] + "1:";
      run.unread = TranslateCode(made, state, engine.errors) + run.unread;
      return;
    }
    return report(text + " *** Unknown function ***");
  }
  if (paren < 1) return engine.assignment.Assign(text, eq);
  if (engine.assignment.AssignElement(text, paren)) return;
  if (Left(upper, paren - 1) == "IF") return If(run, text);
  CodeRun none(engine);
  engine.commands.Run(engine, text, paren, none);
}

void PlainLib::If(Run& run, const std::string& statement) {
  ScriptState& state = Parts().state;
  const std::string text = Mid(statement, 3), upper = UCase(text);
  const long bracket = InStr(upper, ")THEN"), then = bracket > 0 ? bracket : InStr(upper, " THEN");
  if (then < 2) return Parts().errors.ReportError("Syntax Error: " + statement);
  const std::string condition = runtime::Trim(Left(text, bracket > 0 ? then : then - 1));
  const std::string tail = runtime::Trim(Mid(text, then + 5));
  runtime::PassOverErrors([&] { state.condFlag = Parts().expressions.EvalExpression(condition); });
  if (tail.empty() || tail[0] == ':') return;
  if (state.condFlag) run.unread = tail + run.unread;
  state.condFlag = false;
}

void PlainLib::Search(Run& run, std::string& where) {
  ScriptState& state = Parts().state;
  const long place = InStr(where, state.labelTarget);
  if (place > 0) {
    where = Mid(where, place + runtime::Len(state.labelTarget));
    state.labelTarget = "";
    state.labelSearch = 0;
  } else if (state.labelSearch > 0) {
    run.ended = true;
  } else {
    Parts().errors.ReportError("There is not exists End if or Next operator");
  }
}

void PlainLib::SearchBackward(Run& run, int kind) {
  ScriptState& state = Parts().state;
  if (state.subDepth == 0) {
    run.unread = run.whole;
    state.labelSearch = kind;
    return Search(run, run.unread);
  }
  if (InStr(chain_, std::string(1, listSep)) < 2) return Parts().errors.ReportError("Script Error");
  const long end = InStr(run.unread, kEnd);
  if (end > 0) run.unread = Mid(run.unread, end + runtime::Len(kEnd));
  sub_start_ = static_cast<long>(runtime::Val(chain_));
  std::string body;
  if (!Body(body)) return;
  const std::string rest = run.unread;
  Search(run, body);
  run.unread = body + rest;
}

bool PlainLib::Body(std::string& body) {
  const long line = InStr(sub_start_, subs_code_, kLine);
  const long end = line == 0 ? 0 : InStr(line, subs_code_, kEnd);
  if (end == 0) {
    Parts().errors.ReportError(line == 0 ? "Unknown Sub" : "Sub definition Error");
    return false;
  }
  body = Mid(subs_code_, line + 2, end + runtime::Len(kEnd) - line - 2);
  return true;
}

void PlainLib::Call(Run& run, const std::string& text) {
  Engine& engine = Parts();
  ScriptState& state = engine.state;
  const size_t store_length = engine.store.Text().size();
  const long var_count = engine.store.varCount();
  const auto fail = [&] { engine.errors.ReportError("Calling Sub Error."); };
  const long bracket = InStr(text, "(");
  if (bracket == 0) return fail();
  const std::string name = UCase(Mid(text, 6, bracket - 5));
  const long entry = InStr(subs_index_, listSep + name);
  if (entry == 0) return fail();
  const long offset = static_cast<long>(runtime::Val(Mid(subs_index_, entry + 1 + runtime::Len(name))));
  const long line = InStr(offset, subs_code_, kLine);
  if (line == 0) return fail();
  const std::string header = Mid(subs_code_, offset, line - offset);
  const long open = InStr(header, "("), close = InStr(header, ")"), last = runtime::InStrRev(text, ")");
  if (close < open || last < bracket) return fail();
  std::string formals = Mid(header, open + 1, close - open - 1) + ",", values;
  if (formals != ",") {
    engine.expressions.EvalExpression(Mid(text, bracket + 1, last - bracket - 1) + ",");
    if (state.stopFlag) return;
    values = TextOf(state.lastValue) + listSep;
  }
  state.subDepth++;
  saved_.resize(static_cast<size_t>(state.subDepth) + 1);
  saved_[state.subDepth] = {store_length, var_count};
  const auto leave = [&] {
    engine.store.CutTo(store_length, var_count);
    state.subDepth--;
  };
  while (formals.size() >= 2 && InStr(formals, ",") >= 2) {
    const long comma = InStr(formals, ",");
    const std::string formal = runtime::Trim(Left(formals, comma - 1));
    formals = Mid(formals, comma + 1);
    engine.assignment.DeclareVars("DIMM" + formal);
    const long end = InStr(values, std::string(1, listSep));
    if (end == 0) {
      leave();
      return fail();
    }
    const long cell = engine.store.CellForStoring(formal, state.subDepth);
    if (cell < 1)
      engine.errors.ReportError(text + " Error operation");
    else
      engine.store.Store(cell, Text(Left(values, end - 1)));
    values = Mid(values, end + 1);
  }
  chain_ = runtime::CStr(offset) + listSep + chain_;
  sub_start_ = offset;
  std::string body;
  if (!Body(body)) return;
  run.unread = body + run.unread;
}

}  // namespace corvane::script
