// The windows and the machine around a script on the command line: nothing is shown, and nobody steps.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "script/frm_lib.h"

namespace corvane::cli {

// The workshop without its window: its edit box is empty until PUTCODE fills it.
class WorkshopTexts : public script::Workshop, public script::WorkshopWindow {
 public:
  explicit WorkshopTexts(host::Services& services) : services_(services) {}

  std::string Code() override { return code_; }
  long SelStart() override { return sel_start_; }
  std::vector<std::string> Sorted(std::vector<std::string> items) override {
    return script::SortedAsListed(std::move(items));
  }
  void Display() override {}
  std::string LibraryText() override;
  void ShowResult(const std::string&) override {}
  void SetScriptFile(const std::string&) override {}
  void PutCode(const std::string& text) override { code_ = text; }
  void SetSelStart(long start) override { sel_start_ = start; }

 private:
  host::Services& services_;
  std::string code_;
  long sel_start_ = 0;
};

// Its lines DIM, CONST and HELP do what they do in a dialog; controls are passed over, and the page is answered with
// Next. A block with a NAME is kept.
class PassedForms : public script::FormPages {
 public:
  bool Form(script::frmLib& lib, script::ScriptText& script, const std::string& opener, bool show) override;
  void Modify(script::frmLib&, const std::string&) override {}
  void CloseDlg(const std::string&) override {}
};

// "Run on" at once.
class NoDebugWindow : public script::DebugWindow {
 public:
  script::DebugAnswer Display(const script::DebugView&) override { return {}; }
};

// What STOP shows is the result, which is put out anyway.
class NoResultWindow : public script::ResultWindow {
 public:
  void NewWidth(bool) override {}
  void DisplayRes(const std::string&, const std::string&, const std::string&) override {}
};

// Deletes files; starts nothing.
class DeletingPlatform : public script::Platform {
 public:
  double Shell(const std::string&) override { throw runtime::Error(runtime::kFileNotFound); }
  void Open(const std::string&) override { throw runtime::Error(runtime::kFileNotFound); }
  void Kill(const std::string& path) override;
};

class NoObjects : public script::ScriptObjectFactory {
 public:
  std::shared_ptr<script::ScriptObject> CreateObject(const std::string&) override {
    throw runtime::Error(runtime::kCannotCreateObject);
  }
};

class LocalClock : public script::Clock {
 public:
  double Now() override;
};

}  // namespace corvane::cli
