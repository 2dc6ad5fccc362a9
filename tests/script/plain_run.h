// PlainLib: the execution loop in its plain form, on texts that are copied at every statement. What is unread, the
// whole program and the store of SUBs are texts and nothing else; there is no table, no index and nothing is kept.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "script/frm_lib.h"

namespace corvane::script {

class PlainLib : public frmLib {
 public:
  using frmLib::frmLib;
  void RunCode(std::string text) override;

 private:
  struct Run {
    std::string unread, whole;
    bool defining = false, ended = false;
    int counter = 0;
  };
  void Loop(Run& run);
  void Statement(Run& run, long eq, long paren, const std::string& text);
  void Define(Run& run, long eq, long paren, const std::string& text);
  void If(Run& run, const std::string& statement);
  void Search(Run& run, std::string& where);
  void SearchBackward(Run& run, int kind);
  void Call(Run& run, const std::string& statement);
  bool Body(std::string& body);

  std::string subs_code_, subs_index_, chain_;
  long sub_start_ = 0;
  std::vector<std::pair<size_t, long>> saved_;
};

}  // namespace corvane::script
