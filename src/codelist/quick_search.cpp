// Filling the quick list: with the lines that hold a text, or with the declarations.
#include <algorithm>

#include "codelist/reading_commands.h"
#include "codelist/uc_list_box.h"
#include "runtime/strings.h"

namespace corvane::codelist {

namespace {

constexpr std::string_view kDeclarations[] = {"DIM ", "STATIC ", "PRIVATE ", "PUBLIC "};
constexpr int kLastIgnoredKey = 9;

// The entry of a line: its picture mark is no text.
std::string WithoutPicture(std::string text) {
  if (text.empty() || text[0] != kPictureMark) return text;
  const size_t end = text.find(kPictureMark, 1);
  return end == std::string::npos ? text : text.substr(end + 1);
}

}  // namespace

// The lines that are seen, or would be but for the bit of the selection.
bool ReadingCommands::IsQuicklyListed(long line) const {
  return list.store.State(line) < kVisibleBelow || list.store.State(line) > kVisibleFrom;
}

bool ReadingCommands::ListQuickly(const std::function<bool(const std::string&)>& wanted) {
  bool found = false;
  for (long line = 1; line <= list.store.Count(); ++line) {
    if (!IsQuicklyListed(line) || !wanted(runtime::UCase(list.store.Text(line)))) continue;
    if (!std::exchange(found, true)) list.lbx.Clear();
    list.lbx.AddItem(WithoutPicture(list.List(line)));
    list.lbx.SetItemData(list.lbx.NewIndex(), line);
  }
  return found;
}

void ReadingCommands::ShowListedQuickly(bool found, bool keep) {
  if (!found && !keep) list.lbx.Clear();
  list.previousLine = list.currentLine;
  list.ShowQuickList();
}

void ReadingCommands::ShowDeclarations() {
  list.lbx.Clear();
  const bool found = ListQuickly([](const std::string& line) {
    return std::any_of(std::begin(kDeclarations), std::end(kDeclarations),
                       [&](std::string_view word) { return runtime::Holds(line, word); });
  });
  ShowListedQuickly(found, false);
}

void ReadingCommands::SearchHere() {
  WithoutObject();
  SearchQuickly(runtime::UCase(cursorWord), std::string::npos);
}

// [last] is the last place, from 0, at which a line may hold [text].
void ReadingCommands::SearchQuickly(const std::string& text, size_t last) {
  const bool found = ListQuickly([&](const std::string& line) {
    const size_t at = line.find(text);
    return at != std::string::npos && at <= last;
  });
  ShowListedQuickly(found, text == kCaption && list.lbx.ListCount() > 0);
}

void ReadingCommands::BlankTyped() {
  const bool captions = (list.listMode == kGridList || list.listMode == kSqlList) && list.lbx.ListCount() == 0;
  if (captions || list.ListRole == kSourcePane) return SearchQuickly(std::string(kCaption), 1);
  if (list.lbx.ListCount() > 0) return list.ShowQuickList();
  ShowDeclarations();
}

void ReadingCommands::KeyTyped(int key) {
  if (list.store.Count() == 0 || (key >= 1 && key <= kLastIgnoredKey)) return;
  if (key == ' ') {
    BlankTyped();
  } else if (key == forms::vbKeyReturn) {
    list.DblClick();
  } else if (key == forms::vbKeyEscape) {
    if (list.KeepOnEscape) return;
    list.SetVisible(false);
    list.EscapeClicked();
  } else {
    AskForQuickSearch(key);
  }
}

void ReadingCommands::AskForQuickSearch(int key) {
  const std::string typed = key > ' ' ? std::string(1, static_cast<char>(key)) : std::string();
  const std::string text = list.services.Prompts.InputBoxTyped("Type SubString for Quick Search", typed);
  if (!text.empty()) SearchQuickly(runtime::UCase(text), std::string::npos);
}

}  // namespace corvane::codelist
