#include "cli/inspect_command.h"

#include <vector>

#include "cli/headless_list.h"
#include "cli/json_text.h"
#include "runtime/code_page.h"
#include "script/line_comments.h"
#include "script/prepare_source.h"
#include "script/translator.h"

namespace corvane::cli {

namespace {

// Every box is answered with OK.
struct Messages : script::ErrorReport {
  void ReportError(const std::string& message) override { all.push_back(message); }
  std::vector<std::string> all;
};

}  // namespace

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

int InspectFlat(const std::string& file_bytes, int code_page, std::ostream& out) {
  if (code_page != 0) runtime::SetAnsiCodePage(code_page);
  script::ScriptState state;
  Messages messages;
  std::string code = script::PrepareSource(script::CodeOfLines(WithCrLf(file_bytes)), messages);
  out << "{\"flat\":" << JsonText(script::TranslateCode(code, state, messages)) << ",\"messages\":[";
  const char* separator = "";
  for (const std::string& message : messages.all) {
    out << separator << JsonText(message);
    separator = ",";
  }
  out << "]}\n";
  return 0;
}

// A page that is not known is taken as another one.
bool IsKnownCodePage(int number) {
  return runtime::CodePage(number).Number() == number;
}

}  // namespace corvane::cli
