// CodeRun: one run of a piece of code. It eats the flat program from its front; what is left to read is all its state.
#pragma once

#include <cstdint>
#include <string>

#include "script/engine.h"
#include "script/unread_program.h"

namespace corvane::script {

class CodeRun {
 public:
  // Each run of a function inside an expression takes a part of the stack, which is 1 MB in the environment.
  static constexpr int kDeepestRun = 200;
  // A call of a SUB takes no stack, but an endless recursion must end.
  static constexpr int kDeepestCall = 4000;
  // Statements over all runs: those that are each too short to yield may follow one another without end.
  static constexpr long kMostUnyielded = 15'000;
  static constexpr uint32_t kLongestUnyielded = 100;  // milliseconds

  explicit CodeRun(Engine& engine) : engine_(engine), state_(engine.state) {}

  // Cleans and translates [text], and runs it.
  void Run(const std::string& text);
  void RunFlat(std::shared_ptr<FlatProgram> program);

  // A row of the table of statements: its word, whether it fits, whether only inside a SUB, what it does, and how the
  // reference tells it. The first that fits acts; the last fits all.
  struct Row {
    std::string_view word;  // in upper case
    bool (*fits)(const ProgramItem& statement, std::string_view word);
    bool in_sub_only;
    void (CodeRun::*act)(ProgramItem& statement);
    std::string_view shape, help;

    bool Fits(const ProgramItem& statement) const { return fits(statement, word); }
  };
  static const Row kRows[];

  // Cuts the program to the end of the SUB that runs; false where none follows.
  bool CutToEndSub() { return unread_.CutTo(std::string(kEndSub)); }

 private:
  void Loop();
  void Yield();
  bool TakesLong() const;
  void OutOfMemory();
  bool AtEnd();
  void TakeLabel(const ProgramItem& label);
  void TakeStatement(ProgramItem& statement);
  void CheckLimits(const ProgramItem& statement);
  size_t MemoryHeld() const;
  void Dispatch(ProgramItem& statement);
  void End() { ended_ = true; }
  void Report(const std::string& message) { engine_.errors.ReportError(message); }

  // sub_calls.cpp
  void CopyToDefinition(const ProgramItem& statement);
  void BeginDefinition(ProgramItem& statement);
  void Call(ProgramItem& statement);
  bool EnterSub(const ProgramItem& statement, long offset);
  bool PassValues(const ProgramItem& statement, std::string formals, std::string values);
  void LeaveCall();
  bool LoadBody(long offset);
  void ReturnFromSub(ProgramItem& statement);
  void ExitSub(ProgramItem& statement);

  // jumps.cpp
  void SearchLabel();
  void LabelNotFound();
  void JumpForward(ProgramItem& statement);
  void JumpBackward(ProgramItem& statement);
  void JumpToEndIf(ProgramItem& statement);
  void JumpUnlessTrue(ProgramItem& statement);
  void GoTo(ProgramItem& statement);
  void SearchBackward(int search_at_top);
  const std::string& Target(ProgramItem& statement, size_t column, std::string_view before = {});

  // statements.cpp
  void TestCase(ProgramItem& statement);
  void Output(ProgramItem& statement);
  void Dim(ProgramItem& statement);
  void EndCode(ProgramItem& statement);
  void Exit(ProgramItem& statement);
  void Ignore(ProgramItem&) {}
  void Debug(ProgramItem& statement);
  void StopAndShow(ProgramItem& statement);
  void StopAndShowWide(ProgramItem& statement);
  void ShowResult(bool wide);
  void Plain(ProgramItem& statement);
  void Assign(ProgramItem& statement);
  void InBrackets(ProgramItem& statement);
  void If(ProgramItem& statement);
  void Other(ProgramItem& statement);

  Engine& engine_;
  ScriptState& state_;
  UnreadProgram unread_, whole_;
  std::shared_ptr<FlatProgram> current_;  // holds the item that runs
  int counter_ = 0;
  bool defining_ = false;
  bool ended_ = false;
};

}  // namespace corvane::script
