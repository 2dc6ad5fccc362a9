// `corvane script FILE`: runs a script without windows.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace corvane::cli {

struct ScriptOptions {
  std::vector<std::string> answers, parameters;
  std::string library;         // the folder of LibCode.txt and WorkShop; the data folder if empty
  std::string project = {};    // a .vbp or .vbg of this machine; none is open if empty
  std::string component = {};  // that is selected, as "Me"
  bool save = false;           // what the script changed
  bool quiet = false;          // the changes are not shown
  bool json = false, plan = false;
  int code_page = 0;  // 0: the one in force
};

// Puts the result text out on [out] as it is, each box on [errors], and behind them what the script changed in the
// project. Ctrl+C ends the script at its next yield, and nothing is saved then. 0, or 1 if an error box came up or a
// file could not be opened or written; 2, without a result, for an answer that fits no button.
int RunScriptFile(const std::string& file_bytes, const ScriptOptions& options, std::ostream& out, std::ostream& errors);

}  // namespace corvane::cli
