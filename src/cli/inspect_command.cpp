#include "cli/inspect_command.h"

#include "cli/headless_list.h"
#include "cli/json_text.h"
#include "runtime/code_page.h"

namespace corvane::cli {

int InspectLines(const std::string& file_bytes, const std::string& mode, int list_role, int code_page,
                 std::ostream& out) {
  if (code_page != 0) runtime::SetAnsiCodePage(code_page);
  HeadlessList list;
  list->sGrid(mode);
  list->ListRole = list_role;
  list->SetText(WithCrLf(file_bytes));
  for (long line = 1; line <= list->ListCount(); ++line)
    out << "{\"level\":" << list->LineLevel(line) << ",\"text\":" << JsonText(list->StoredText(line)) << "}\n";
  return 0;
}

// A page that is not known is taken as another one.
bool IsKnownCodePage(int number) {
  return runtime::CodePage(number).Number() == number;
}

}  // namespace corvane::cli
