// Translation: one call of TranslateCode. A statement passes the rules in the order of the table in rewriting.cpp; what
// a rule pushes in front of the unread text passes them again. Labels are numbered by the counters:
//
//   _In      end of the then-part or else-part of the IF at nesting n
//   _Fd_k    head of the loop at depth d of outermost loop k; with d-1 the place behind it
//   _F_d_k   test of a FOR, behind its increment
//   _Sn      next CASE of the SELECT at nesting n
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "script/statement_scan.h"
#include "script/unread_text.h"

namespace corvane::script {

class Translation {
 public:
  Translation(ScriptState& state, ErrorReport& report) : state_(state), report_(report) {}

  std::string Run(std::string text);

  // Whether the statement is used up: false lets the tests go on.
  using Rule = bool (Translation::*)();
  struct KeywordRule {
    std::string_view start;  // in upper case
    Rule apply;              // none behind the last
    std::string_view shape, help;
  };
  static const KeywordRule kRules[];

 private:
  // A text under translation: the whole one, or the tail of a one-line IF. The IF waits meanwhile, with its head up to
  // the tail in place of its text.
  struct Piece {
    explicit Piece(std::string text) : unread(std::move(text)) {}
    UnreadText unread;
    std::string flat;
    std::string function;  // the one whose body is open, in upper case
    Statement waiting;
    bool open_comment = false;
  };

  void TranslatePiece();
  bool TranslateNext();
  void Rewrite();
  void EmitOrdinary();
  void EndOneLineIf(std::string_view flat);

  bool ElseIf();
  bool Else();
  bool EndIf();
  bool If();
  void BlockIf();
  bool IsTooDeep();
  void OneLineIf(long then_column, std::string tail);

  bool SelectCase();
  bool EndSelect();
  bool CaseElse();
  bool Case();
  bool NoSelectOpen();

  bool ExitLoop();
  bool Continue();
  bool EndLoop();
  bool While();
  bool For();
  void OpenLoop();

  bool EndSub();
  bool Function();
  bool ExitFunction();
  bool EndFunction();

  void Push(std::string_view source) { pieces_.back().unread.Push(source); }
  std::string& Flat() { return pieces_.back().flat; }
  void Emit(long eq, long paren, std::string_view text);
  void EmitJump(const std::string& jump);  // with its label, without ":"
  void EmitLabel(std::string_view name);
  void Report(const std::string& message) { report_.ReportError(message); }
  void SetStatement(std::string text);

  std::string IfLabel() const;
  std::string SelectLabel() const;
  std::string LoopLabel(int depth) const;
  std::string TestLabel() const;
  int SelectNesting() const;
  Counters& Count() const { return state_.counters; }

  ScriptState& state_;
  ErrorReport& report_;
  std::vector<Piece> pieces_;  // the innermost last
  Statement statement_;        // the one that passes the rules
  std::string upper_;          // its text in upper case
  bool from_else_if_ = false;
};

}  // namespace corvane::script
