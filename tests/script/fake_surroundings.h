// Everything around one frmLib for tests: windows that record what they were given and answer from a script.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "runtime/strings.h"
#include "script/frm_lib.h"
#include "script/marks.h"
#include "script/script_text.h"
#include "tests/script/fake_outside.h"

namespace corvane::script {

// ";" for listSep, "|" for labelMark, "\n" for a line end.
inline std::string Readable(std::string text) {
  text = runtime::Replace(text, runtime::kCrLf, "\n");
  for (char& c : text) {
    if (c == listSep) c = ';';
    if (c == labelMark) c = '|';
  }
  return text;
}

class FakeChanges : public IdeCommands {
 public:
  std::vector<std::string> calls;
  bool shows_line = true;

  void Replace(ErrorReport&, const std::string& first, const std::string& second) override {
    Call("replace", first + "," + second);
  }
  void Create(ErrorReport&, const std::string& type, const std::string& name) override {
    Call("create", type + "," + name);
  }
  void Remove(ErrorReport&, const std::string& address) override { Call("remove", address); }
  void ReplaceLine(ErrorReport&, const std::string& list) override { Call("replaceline", list); }
  void DeleteCode(ErrorReport&, const std::string& list) override { Call("deletecode", list); }
  void InsertCode(ErrorReport&, const std::string& list) override { Call("insert", list); }
  void WriteResult(ErrorReport&, const std::string& list, std::string_view) override { Call("write", list); }
  bool GoCodeLine(ErrorReport&, const std::string& list) override { return Call("gocodeline", list), shows_line; }
  void Open(ErrorReport&, const std::string& component) override { Call("open", component); }

 private:
  void Call(const char* name, const std::string& list) { calls.push_back(std::string(name) + " " + Readable(list)); }
};

class FakeWindow : public WorkshopWindow {
 public:
  std::string library;
  std::vector<std::string> calls;

  void Display() override { calls.push_back("display"); }
  std::string LibraryText() override { return library; }
  void ShowResult(const std::string& text) override { calls.push_back("result " + Readable(text)); }
  void SetScriptFile(const std::string& path) override { calls.push_back("file " + path); }
  void PutCode(const std::string& text) override { calls.push_back("code " + Readable(text)); }
  void SetSelStart(long start) override { calls.push_back("start " + std::to_string(start)); }
};

// Takes the lines of each block; an answer for each, "2" without one.
class FakeForms : public FormPages {
 public:
  std::vector<std::string> blocks, calls;
  std::deque<std::string> answers;
  std::function<void(frmLib&)> while_shown;  // what an event of the dialog does

  bool Form(frmLib& lib, ScriptText& script, const std::string& opener, bool show) override {
    std::string block = (show ? "" : "hidden ") + opener;
    for (auto line = script.NextLine(); line && line->substr(0, 9).find('}') == std::string::npos;
         line = script.NextLine())
      block.append("|").append(*line);
    blocks.push_back(block);
    if (while_shown) while_shown(lib);
    const std::string answer = answers.empty() ? "2" : answers.front();
    if (!answers.empty()) answers.pop_front();
    lib.Parts().state.lastValue = Text(answer);
    return answer != "0";
  }
  void Modify(frmLib&, const std::string& arguments) override { calls.push_back("modify " + Readable(arguments)); }
  void CloseDlg(const std::string& result) override { calls.push_back("close " + result); }
};

// Runs on without an answer.
class FakeDebug : public DebugWindow {
 public:
  std::deque<DebugAnswer> answers;
  std::vector<DebugView> views;

  DebugAnswer Display(const DebugView& view) override {
    views.push_back(view);
    if (answers.empty()) return {};
    DebugAnswer answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

class FakeResult : public ResultWindow {
 public:
  std::vector<std::string> calls;
  void NewWidth(bool list) override { calls.push_back(list ? "list" : "text"); }
  void DisplayRes(const std::string& text, const std::string& label, const std::string& caption) override {
    calls.push_back(Readable(text) + "/" + label + "/" + caption);
  }
};

class FakePlatform : public script::Platform {
 public:
  explicit FakePlatform(environment::MemoryFiles& files) : files_(files) {}
  std::vector<std::string> calls;
  double Shell(const std::string& program) override { return calls.push_back("shell " + program), 42; }
  void Open(const std::string& file) override { calls.push_back("open " + file); }
  void Kill(const std::string& path) override {
    calls.push_back("kill " + path);
    files_.Read(path);
    files_.Remove(path);
  }

 private:
  environment::MemoryFiles& files_;
};

struct FakeSurroundings {
  tests::FakeServices services;
  FakeIde ide;
  FakeWorkshop workshop;
  FakeObjects objects;
  FakeClock clock;
  FakeChanges changes;
  FakeWindow window;
  FakeForms forms;
  FakeDebug debug;
  FakeResult result;
  FakePlatform platform{services.files};
  std::string paramExchange;
  Surroundings around{services, ide,   workshop, objects, clock,    changes,
                      window,   forms, debug,    result,  platform, paramExchange};
};

}  // namespace corvane::script
