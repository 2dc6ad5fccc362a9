#include "tests/script/plain_translator.h"

#include <cstdlib>

#include "runtime/strings.h"
#include "script/marks.h"

namespace corvane::script {

namespace {

using namespace runtime;

const std::string kMark(1, lineMark), kLabel(1, labelMark);

bool In(const std::string& set, const std::string& character) {
  return character.size() == 1 && Holds(set, character);
}

std::string Padded(long number, size_t width) {
  std::string text = std::to_string(number);
  while (text.size() < width) text = "0" + text;
  return text;
}

std::string Flat(long eq, long paren, const std::string& text) {
  return Padded(eq, 2) + Padded(paren, 2) + Padded(Len(text), 3) + text;
}

std::string LabelItem(const std::string& name) {
  return kLabel + name + ":";
}

// The text without [count] characters from column [at] on.
std::string Without(const std::string& text, long at, long count) {
  return Left(text, at - 1) + Mid(text, at + count);
}

class PlainTranslation {
 public:
  PlainTranslation(std::string& text, ScriptState& state, ErrorReport& report)
      : text_(text), state_(state), report_(report) {}

  std::string Run() {
    while (!text_.empty() && !state_.stopFlag) {
      while (In(" :" + kMark, Left(text_, 1))) text_ = Mid(text_, 2);
      if (text_.empty()) break;
      if (!Scan()) break;
    }
    const bool comment = in_comment_ && !state_.stopFlag;
    return comment ? result_ : result_ + "::";
  }

 private:
  std::string Translated(std::string source) { return PlainTranslation(source, state_, report_).Run(); }
  void Push(const std::string& source) { text_ = source + text_; }
  std::string If() const { return "_I" + std::to_string(state_.counters.ifDepth); }
  std::string Loop(int depth) const {
    return "_F" + std::to_string(depth) + "_" + std::to_string(state_.counters.loopId);
  }
  std::string Select() const { return "_S" + std::to_string(std::abs(state_.counters.selectId)); }

  void Fail(const std::string& message, const std::string& statement, long end) {
    state_.currentLine =
        "0000" + Padded(Len(statement), 3) + statement + "0000030" + Left(Mid(text_, end + 1), 30) + ":";
    report_.ReportError(message);
  }

  // False: nothing goes on behind this statement.
  bool Scan() {
    bool in_string = false;
    in_comment_ = false;
    long opened = 0, closed = 0;
    eq_ = paren_ = 0;
    word_ended_ = false;
    long i = 1;
    for (;; ++i) {
      std::string c = Mid(text_, i, 1);
      if (c == "\"") {
        in_string = !in_string;
        continue;
      }
      if (c.empty()) {
        c = ":";
        in_string = false;
        if (in_comment_) return false;
      }
      if (in_string) {
        if (c == kMark) Fail("There is not a pair for \" symbol.", Trim(Left(text_, i - 1)) + ":", i);
        if (state_.stopFlag) return false;
        continue;
      }
      if (in_comment_ && Mid(text_, i, 2) == "*/") {
        text_ = Mid(text_, i + 2);
        if (In(":" + kMark, Left(text_, 1))) text_ = Mid(text_, 2);
        in_comment_ = false;
        i = 1;
        continue;
      }
      if (in_comment_) continue;
      if (Mid(text_, i, 2) == "/*") {
        in_comment_ = true;
        continue;
      }
      if (c == ":" || c == kMark) break;
      if (c == "(" && i == 4 && UCase(Left(text_, 3)) == "VAR" && Holds(text_, ")")) {
        i = InStr(text_, ")");
        continue;
      }
      if (c == "(") ++opened;
      if (c == ")") ++closed;
      if (In("+& ", c) && Mid(text_, i + 1, 2) == "_" + kMark) {
        text_ = c == " " ? Without(text_, i, 3) : Without(text_, i + 1, 2);
        --i;
        continue;
      }
      if (In("+-<>*/\\=&, ", c)) word_ended_ = true;
      if (eq_ != 0) continue;
      if (c == "=") {
        eq_ = i;
        const long close = InStr(i, text_, "]]");
        if (Mid(text_, i, 3) == "=[[" && close > 0) i = close;
      } else if (In("+-<>*/\\()|:& =", c) && !(In("+-*/&", c) && Mid(text_, i + 1, 1) == "=")) {
        eq_ = -1;
        if (c == "(") paren_ = i;
      }
    }
    statement_ = Trim(Left(text_, i - 1)) + ":";
    if (opened != closed) {
      Fail("Brackets Error.", statement_, i);
      text_ = Mid(text_, i + 1);
      return true;
    }
    text_ = Mid(text_, i + 1);
    if (Len(statement_) >= 2) Rewrite();
    return true;
  }

  bool Begins(const std::string& start) const { return UCase(Left(statement_, Len(start))) == start; }

  void Rewrite() {
    Counters& count = state_.counters;
    bool from_else_if = false;
    if (Begins("ELSEIF")) {
      result_ += Translated("GOTN " + If() + ":") + LabelItem(If());
      statement_ = Mid(statement_, 5);
      from_else_if = true;
    }
    if (Begins("SELECT CASE")) {
      count.selectId = std::abs(count.selectId) + 1;
      const std::string expression = Mid(statement_, 12);
      statement_ = "PUSH(" + std::to_string(count.selectId) + "," + Trim(Left(expression, Len(expression) - 1)) + "):";
      paren_ = 5;
    }
    const int nesting = std::abs(count.selectId);
    if (Begins("END SELECT:") || Begins("CASE ELSE:") || Begins("CASE ") || Begins("CASE(")) {
      if (nesting < 1) return report_.ReportError("Select Case: error");
      return SelectPart(nesting);
    }
    if (Begins("EXIT FOR:") || Begins("EXIT WHILE:")) {
      if (count.loopDepth > 0) result_ += Translated("GOTF " + Loop(count.loopDepth - 1) + ":");
      return;
    }
    if (Begins("END SUB:")) {
      result_ += "0000008END SUB:";
      return;
    }
    if (Begins("EXIT FUNCTION")) {
      if (function_.empty()) report_.ReportError("There is no Function for Exit Function operator.");
      return Push("CSTR(" + function_ + "):EXIT SUB:");
    }
    if (Begins("FUNCTION ")) {
      std::string rest = Mid(statement_, 10);
      rest = Left(rest, Len(rest) - 1);
      if (InStr(rest, "(") >= 2) {
        function_ = UCase(Trim(Left(rest, InStr(rest, "(") - 1)));
        return Push("SUB " + rest + ":DIM " + function_ + ":");
      }
      report_.ReportError("Error Function definition");
      if (state_.stopFlag) return;
    }
    if (Begins("END FUNCTION:")) {
      if (function_.empty()) report_.ReportError("There is no Function for End Function operator.");
      if (state_.stopFlag) return;
      const std::string name = function_;
      function_ = "";
      result_ += Translated("CStr(" + name + ")") + "0000008END SUB:";
      return;
    }
    if (Begins("ELSE:")) {
      result_ += Translated("GOTN " + If() + ":") + "0000005ELSE:" + LabelItem(If());
      return;
    }
    if (Begins("END IF")) {
      const std::string label = If();
      count.ifDepth -= 1;
      if (count.ifDepth < 0) return report_.ReportError("End If operator error.");
      result_ += "0000007END IF:" + LabelItem(label);
      return;
    }
    if (Begins("IF(") || Begins("IF ")) {
      long p = InStr(UCase(statement_), ")THEN");
      if (p == 0) p = InStr(UCase(statement_), " THEN");
      if (p >= 5) {
        std::string tail = Mid(statement_, p + 5);
        if (Left(UCase(tail), 14) == " EXIT FUNCTION") {
          Push(tail + ":End If:");
          tail = "";
          statement_ = Left(statement_, p + 4) + ":";
        }
        if (Len(tail) < 2) {
          if (!from_else_if) count.ifDepth += 1;
          result_ += Flat(0, 0, statement_) + Translated("GO " + If() + ":");
          return;
        }
        if (Left(tail, 1) == "=") {
          p -= 1;
        } else {
          tail = Mid(tail, 2);
        }
        statement_ = Left(statement_, p + 5) + Translated(tail);
        result_ += Flat(eq_, paren_, statement_);
        return;
      }
    }
    if (Begins("CONTINUE:")) {
      if (count.loopDepth > 0) Push("GOTB " + Loop(count.loopDepth) + ":");
      return;
    }
    if (Begins("NEXT ") || Begins("NEXT:") || Begins("WEND:") || Begins("LOOP:")) {
      if (count.loopDepth < 1) return report_.ReportError(Left(statement_, 5) + " without For or While operators");
      Push("GOTB " + Loop(count.loopDepth) + ":END IF:" + Loop(count.loopDepth - 1) + ":");
      count.loopDepth -= 1;
      return;
    }
    if (Begins("WHILE ")) {
      const std::string condition = Mid(statement_, 7);
      RaiseLoop();
      return Push(Loop(count.loopDepth) + ":IF " + Left(condition, Len(condition) - 1) + " THEN:");
    }
    if (Begins("FOR ")) return For();
    Ordinary();
  }

  void SelectPart(int n) {
    Counters& count = state_.counters;
    if (Begins("END SELECT:")) {
      result_ += "0000007END IF:" + LabelItem(Select());
      count.selectId = n - 1;
      if (count.selectId > 0) result_ += LabelItem(Select());
    } else if (Begins("CASE ELSE:")) {
      if (count.selectId < 0) result_ += Translated("GOTN " + Select() + ":") + LabelItem(Select());
    } else {
      if (count.selectId < 0) result_ += Translated("GOTN " + Select() + ":" + Select() + ":");
      result_ += Flat(0, paren_, Left(statement_, 5) + std::to_string(n) + "," + Mid(statement_, 6));
      result_ += Translated("GO " + Select() + ":");
      count.selectId = -n;
    }
  }

  void RaiseLoop() {
    state_.counters.loopDepth += 1;
    if (state_.counters.loopDepth == 1) state_.counters.loopId += 1;
  }

  void For() {
    const std::string error = "Syntax Error Use:For i=1 to 12 [step=-1]";
    const std::string text = Trim(Mid(statement_, 5));
    const long to = InStr(UCase(text), " TO ");
    if (to < 2) return report_.ReportError(error);
    const std::string init = Left(text, to - 1);
    if (InStr(init, "=") < 2) return report_.ReportError(error);
    std::string limit = Mid(text, to + 4), step = "1";
    const long cut = InStr(UCase(limit), " STEP");
    if (cut > 0) {
      step = Trim(Mid(limit, cut + 5));
      limit = Left(limit, cut - 1);
    }
    limit = Trim(limit);
    if (Right(limit, 1) == ":") limit = Left(limit, Len(limit) - 1);
    if (Right(step, 1) == ":") step = Left(step, Len(step) - 1);
    if (limit.empty()) return report_.ReportError(error);
    RaiseLoop();
    const std::string variable = Trim(Left(init, InStr(init, "=") - 1));
    const std::string head = Loop(state_.counters.loopDepth), test = "_F_" + Mid(head, 3);
    Push(init + ":GOTF " + test + ":" + head + ":" + variable + "=" + variable + "+STEP(" + step + "):" + test +
         ":IF " + variable + (Left(step, 1) == "-" ? "=>" : "<=") + limit + " THEN:");
  }

  void Ordinary() {
    if (Len(statement_) < 3) return;
    if (Left(statement_, 1) == kLabel) {
      result_ += statement_;
      return;
    }
    const std::string words = "STOPEX:STOP:END CODE:EXIT:EXIT FOR:EXIT WHILE:DEBUG:STEP:";
    if (eq_ < 1 && paren_ == 0 && !word_ended_ && !Holds(words, UCase(statement_))) {
      result_ += kLabel + UCase(statement_);
      return;
    }
    result_ += Flat(eq_, paren_, statement_);
  }

  std::string& text_;
  ScriptState& state_;
  ErrorReport& report_;
  std::string result_, statement_, function_;
  long eq_ = 0, paren_ = 0;
  bool word_ended_ = false, in_comment_ = false;
};

}  // namespace

std::string PlainPrepareSource(std::string text, ErrorReport& report) {
  const std::string set = "+-<>*/\\()|:& =";
  bool in_string = false, in_literal = false;
  text = Trim(text);
  for (long i = 2; Len(text) >= 3 && i < Len(text); ++i) {
    const std::string c = Mid(text, i, 1), before = Mid(text, i - 1, 1), after = Mid(text, i + 1, 1);
    if (in_literal) {
      if (Mid(text, i, 2) == "]]") in_literal = false;
    } else if (c == "\"") {
      in_string = !in_string;
    } else if (in_string) {
    } else if (c == "'" && InStr(i, text, kMark) > 0) {
      text = Without(text, i, InStr(i, text, kMark) - i);
      --i;
    } else if (c == "=" && Mid(text, i + 1, 2) == "[[") {
      in_literal = true;
    } else if (c == " " && In(set, before) && before != ")") {
      text = Without(text, i, 1);
      --i;
    } else if (c == " " && In(set, after)) {
      const bool kept = after == "(" && i >= 5 && Holds(" OR AND", UCase(Mid(text, i - 3, 3)));
      if (!kept) {
        text = Without(text, i, 1);
        --i;
      }
    }
  }
  if (in_literal) report.ReportError("There are not ']]' symbols.");
  return text + ":";
}

std::string PlainTranslateCode(std::string& text, ScriptState& state, ErrorReport& report) {
  return PlainTranslation(text, state, report).Run();
}

}  // namespace corvane::script
