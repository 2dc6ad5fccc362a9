#include "explorer/project_access.h"
#include "runtime/code_page.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

// What ends a word. Quotes and the apostrophe do not.
constexpr std::string_view kSeparators = "+=,:.() &`/\\*;<>?-!~|%^?";

std::string WordAt(const std::string& line, const host::Selection& selection) {
  if (selection.start_column > Len(line) || Len(line) < 2) return {};
  if (selection.start_line == selection.end_line && selection.start_column != selection.end_column)
    return Mid(line, selection.start_column, selection.end_column - selection.start_column);
  std::string copy;
  const std::string_view searched = AnsiCodePage().ForSearch(line, copy);
  size_t separator = searched.find_last_of(kSeparators, static_cast<size_t>(selection.start_column) - 1);
  const size_t start = separator == std::string_view::npos ? 0 : separator + 1;
  return line.substr(start, searched.find_first_of(kSeparators, start) - start);
}

}  // namespace

std::string CurrentWord(const host::Ref<host::VBE>& vbe) {
  std::string word;
  PassOverErrors([&] {
    host::Ref<host::CodePane> pane = Object(vbe).ActiveCodePane();
    if (!pane) return;
    host::Selection selection = pane->GetSelection();
    word = WordAt(pane->CodeModule()->Lines(selection.start_line, 1), selection);
  });
  return word;
}

}  // namespace corvane::explorer
