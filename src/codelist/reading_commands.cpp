#include "codelist/reading_commands.h"

#include "codelist/collapse.h"
#include "codelist/formatter.h"
#include "codelist/hourglass.h"
#include "codelist/raised.h"
#include "codelist/uc_list_box.h"
#include "runtime/strings.h"

namespace corvane::codelist {

namespace {

// In front of the word that Search tells: where it is to be looked for.
constexpr char kInWholeProject[] = "\x02", kInSelectedModule[] = "\x03";

}  // namespace

ReadingCommands::ReadingCommands(ucListBox& list) : list(list), menu(list, *this) {}

CleanLineOf ReadingCommands::CleanLines() const {
  return [this](long line) { return list.List(line); };
}

const std::string& ReadingCommands::WithoutObject() {
  cursorWord = BehindFirstDot(cursorWord);
  return cursorWord;
}

void ReadingCommands::SearchWord() {
  WithoutObject();
  runtime::PassOverErrors([this] { list.services.Clipboard.Clear(); });
  runtime::PassOverErrors([this] { list.services.Clipboard.SetText(cursorWord); });
  list.Search(cursorWord);
}

void ReadingCommands::SearchInModule() {
  list.Search(kInSelectedModule + WithoutObject());
}

void ReadingCommands::SearchInProject() {
  list.Search(kInWholeProject + WithoutObject());
}

// Raised when the menu is closed.
void ReadingCommands::AskForDBSearch() {
  dbSearchAsked = true;
}

// The level under the pointer; none where the block is too small to be folded.
std::optional<long> ReadingCommands::LevelToFold() {
  if (!CanFold(list.store, list.currentLine)) return std::nullopt;
  const long level = PlaceUnderPointer().level;
  if (level >= kFirstBlockLevel) return level;
  list.services.Prompts.MsgBox("This BlockLevel is too small");
  return std::nullopt;
}

void ReadingCommands::CollapseUnderPointer() {
  const auto level = LevelToFold();
  if (!level) return;
  CollapseHere(list.store, list.currentLine, *level);
  list.Repaint();
}

void ReadingCommands::CollapseOnColorLevel() {
  const auto level = LevelToFold();
  if (!level) return;
  CollapseOnLevel(list.store, *level);
  list.Repaint();
}

void ReadingCommands::CollapseLogically() {
  LogicalCollapse(list.store);
  list.Repaint();
}

void ReadingCommands::CollapseSelectedLines() {
  CollapseSelected(list.store);
  list.Repaint();
}

void ReadingCommands::ResetFolding() {
  ResetCollapse(list.store);
  list.SetStrPos(list.currentLine);
}

void ReadingCommands::ExpandBehindCurrent() {
  Expand(list.store, list.currentLine);
  list.Repaint();
}

void ReadingCommands::JumpTo(long line) {
  list.previousLine = list.currentLine;
  list.SetStrPos(line);
}

void ReadingCommands::GoDownLevel() {
  JumpTo(GoDown(list.store, list.currentLine, menuLevel));
}

void ReadingCommands::GoUpLevel() {
  JumpTo(GoUp(list.store, list.currentLine, menuLevel));
}

void ReadingCommands::GoToLabel() {
  const std::string label = runtime::UCase(cursorWord) + ":";
  for (long line = 1; line <= list.store.Count(); ++line)
    if (list.store.IsVisible(line) && runtime::Holds(runtime::UCase(list.store.Text(line)), label)) return JumpTo(line);
}

void ReadingCommands::GoToPrevious() {
  if (list.previousLine > 1) list.SetStrPos(list.NextVisible(list.previousLine - 1));
}

// Undeclared here, the container looks through the project.
void ReadingCommands::GoToDeclaration() {
  if (list.store.Count() < 2) return;
  cursorWord = BeforeFirstDot(cursorWord);
  if (cursorWord.empty()) return;
  if (wordStop == "(") cursorWord += "()";
  const std::string name = runtime::UCase(cursorWord);
  cursorWord = " " + name;
  if (const auto line = DeclarationAbove(CleanLines(), list.currentLine, name)) return JumpTo(*line);
  list.CodeLostFocus(-list.currentLine);
  list.GoProc(cursorWord);
}

void ReadingCommands::GoToProcedure() {
  if (list.store.Count() < 2) return;
  if (runtime::Holds(cursorWord, ".")) {
    const std::string object = BeforeFirstDot(cursorWord);
    WithoutObject();
    if (!object.empty() && runtime::UCase(object) != "ME")
      cursorWord = ClassOf(CleanLines(), list.currentLine, object) + "." + cursorWord;
  }
  list.CodeLostFocus(-list.currentLine);
  list.GoProc(cursorWord);
}

void ReadingCommands::SaveIntoHistory() {
  if (list.store.Count() > 1) list.CodeLostFocus(-list.currentLine);
}

// The container writes each line that [rewritten] gives and replaces it; levels behind it are not touched meanwhile.
void ReadingCommands::RewriteLines(const std::function<std::optional<std::string>(long)>& rewritten) {
  if (list.store.Count() <= 1) return;
  {
    Raised guard(list.formatting);
    Hourglass pointer(list.services.Screen);
    // The container may yield: another text that comes then was not meant.
    const long clears = list.clears;
    for (long line = 1; line <= list.store.Count() && clears == list.clears; ++line)
      runtime::PassOverErrors([&] {
        if (const auto text = rewritten(line)) list.UpdateString(line, *text);
      });
  }
  list.Repaint();
}

void ReadingCommands::FormatCode() {
  RewriteLines([this](long line) { return Formatted(list.store.Text(line), list.store.LineLevel(line)); });
}

void ReadingCommands::CommentSelected() {
  RewriteLines([this](long line) {
    return list.store.IsSelected(line) ? std::optional(Commented(list.List(line))) : std::nullopt;
  });
}

void ReadingCommands::UncommentSelected() {
  RewriteLines([this](long line) { return list.store.IsSelected(line) ? Uncommented(list.List(line)) : std::nullopt; });
}

}  // namespace corvane::codelist
