#include "cli/script_command.h"

#include <ostream>

#include "cli/headless_list.h"
#include "cli/shown_path.h"
#include "runtime/code_page.h"
#include "script/script_check.h"

namespace corvane::cli {

int CheckScriptFile(const std::string& file_bytes, const std::string& path, int code_page, std::ostream& out,
                    std::ostream& errors) {
  if (code_page != 0) runtime::SetAnsiCodePage(code_page);
  const auto places = script::CheckScript(WithCrLf(file_bytes));
  if (!places) {
    errors << ShownName(path) << ":1: there is no CODE{ block\n";
    return 1;
  }
  for (const script::OddPlace& place : *places)
    out << ShownName(path) << ':' << place.line << ": " << place.does << "; write: " << place.write << '\n';
  return places->empty() ? 0 : 1;
}

}  // namespace corvane::cli
