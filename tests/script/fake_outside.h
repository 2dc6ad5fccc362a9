// A world for scripts under test: services of memory, a project of texts, a workshop and objects that record their
// calls.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "runtime/error.h"
#include "script/marks.h"
#include "script/outside.h"
#include "script/script_state.h"
#include "tests/support/fake_services.h"

namespace corvane::script {

// Answers each function with its name and arguments, and records what was set.
class FakeIde : public IdeAccess {
 public:
  std::string name = "Sample", file = "C:\\Code\\Sample.vbp";
  std::vector<std::string> set;  // "address=value"
  bool fails = false;            // a property that is read

  std::string ProjectName() override { return name; }
  std::string ProjectFileName() override { return file; }
  std::string Components(const std::string& filter) override { return Answer("components", filter); }
  std::string GetProp(ErrorReport&, const std::string& list) override {
    if (fails) throw runtime::Error(runtime::kObjectNotSet);
    return Answer("getprop", list);
  }
  void SetProp(ErrorReport&, const std::string& address, const std::string& value) override {
    set.push_back(address + "=" + value);
  }
  std::string FindLine(ErrorReport&, const std::string& list) override { return Answer("findline", list); }
  std::string Declaration(ErrorReport&, const std::string& list) override { return Answer("declaration", list); }
  std::string ProcLines(ErrorReport&, const std::string& list) override { return Answer("proclines", list); }
  std::string CodeLines(ErrorReport&, const std::string& list) override { return Answer("codelines", list); }
  std::string ReadCode(ErrorReport&, const std::string& list) override { return Answer("readcode", list); }
  std::string GetSelection(ErrorReport&, const std::string& component) override {
    return Answer("getselection", component);
  }
  std::string Add(ErrorReport&, const std::string& list) override { return Answer("add", list); }
  std::string SetPicture(ErrorReport&, const std::string& list) override { return Answer("setpicture", list); }

 private:
  static std::string Answer(const std::string& function, std::string list) {
    for (char& c : list)
      if (c == listSep) c = ';';
    return function + " " + list;
  }
};

class FakeDialogs : public Dialogs {
 public:
  explicit FakeDialogs(ScriptState& state) : state_(state) {}
  std::vector<std::string> shown;
  std::string code = "2";
  void Show(const std::string& form) override {
    shown.push_back(form);
    state_.lastValue = code;
  }

 private:
  ScriptState& state_;
};

class FakeWorkshop : public Workshop {
 public:
  std::string code = "the code";
  long sel_start = 7;
  std::string Code() override { return code; }
  long SelStart() override { return sel_start; }
  std::vector<std::string> Sorted(std::vector<std::string> items) override { return SortedAsListed(std::move(items)); }
};

class FakeObjects : public ScriptObjectFactory {
 public:
  std::vector<std::string> calls;  // "class: command"
  bool fail = false;
  bool calls_fail = false;

  std::shared_ptr<ScriptObject> CreateObject(const std::string& class_name) override {
    if (fail) throw runtime::Error(runtime::kCannotCreateObject);
    calls.push_back("new " + class_name);
    return std::make_shared<Object>(*this, class_name);
  }

 private:
  struct Object : ScriptObject {
    Object(FakeObjects& owner, std::string name) : owner(owner), name(std::move(name)) {}
    Cell Command(const std::string& command) override {
      if (owner.calls_fail) throw runtime::Error(runtime::kNoSuchMember);
      owner.calls.push_back(name + ": " + command);
      return "did " + command;
    }
    Cell SetConnection(ScriptObject& source) override {
      if (owner.calls_fail) throw runtime::Error(runtime::kNoSuchMember);
      owner.calls.push_back(name + " connected with " + static_cast<Object&>(source).name);
      return "connected";
    }
    FakeObjects& owner;
    std::string name;
  };
};

class FakeClock : public Clock {
 public:
  double now = 46067.5;  // 14 February 2026, noon
  double Now() override { return now; }
};

struct FakeOutside {
  explicit FakeOutside(ScriptState& state) : dialogs(state) {}
  tests::FakeServices services;
  FakeIde ide;
  FakeDialogs dialogs;
  FakeWorkshop workshop;
  FakeObjects objects;
  FakeClock clock;
  Outside outside{services, ide, dialogs, workshop, objects, clock};
};

}  // namespace corvane::script
