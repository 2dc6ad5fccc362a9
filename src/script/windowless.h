// The windows around a script where there are none: nothing is shown, and nobody steps.
#pragma once

#include <string>
#include <vector>

#include "script/frm_lib.h"

namespace corvane::script {

// The workshop without its window: its edit box is empty until PUTCODE fills it.
class WorkshopTexts : public Workshop, public WorkshopWindow {
 public:
  explicit WorkshopTexts(host::Services& services) : services_(services) {}

  std::string Code() override { return code_; }
  long SelStart() override { return sel_start_; }
  std::vector<std::string> Sorted(std::vector<std::string> items) override { return SortedAsListed(std::move(items)); }
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
class PassedForms : public FormPages {
 public:
  bool Form(frmLib& lib, ScriptText& script, const std::string& opener, bool show) override;
  void Modify(frmLib&, const std::string&) override {}
  void CloseDlg(const std::string&) override {}
};

// "Run on" at once.
class NoDebugWindow : public DebugWindow {
 public:
  DebugAnswer Display(const DebugView&) override { return {}; }
};

// What STOP shows is the result, which is put out anyway.
class NoResultWindow : public ResultWindow {
 public:
  void NewWidth(bool) override {}
  void DisplayRes(const std::string&, const std::string&, const std::string&) override {}
};

}  // namespace corvane::script
