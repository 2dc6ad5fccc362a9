#include "desk/code_pane.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QVBoxLayout>

#include "desk/ansi_text.h"
#include "desk/user_act.h"
#include "desk/vb_highlighter.h"
#include "runtime/code_page.h"
#include "runtime/strings.h"

namespace corvane::desk {

namespace {

constexpr int kListDelay = 200;  // milliseconds after the last edit until the combo boxes are filled again

// Columns count bytes from 1; in a page of single bytes each is one character.
long ColumnOf(const QTextBlock& block, int position) {
  if (!runtime::AnsiCodePage().IsDoubleByte()) return position + 1;
  const auto bytes = ToBytes(block.text().left(position));
  return static_cast<long>(bytes ? bytes->size() : static_cast<size_t>(position)) + 1;
}

int PositionOf(const QTextBlock& block, std::string_view line, long column) {
  const long before = std::clamp(column - 1, 0L, static_cast<long>(line.size()));
  const auto shown = ToShown(line.substr(0, static_cast<size_t>(before))).size();
  return block.position() + std::min(static_cast<int>(shown), block.length() - 1);
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) {
    if (&line != &lines.front()) text += runtime::kCrLf;
    text += line;
  }
  return text;
}

}  // namespace

CodePane::CodePane(std::shared_ptr<environment::Module> module, QWidget* parent)
    : QWidget(parent),
      module_(std::move(module)),
      code_(module_->CodeModule()),
      editor_(new CodeEditor(this)),
      objects_(new QComboBox(this)),
      procedures_(new QComboBox(this)) {
  auto* lists = new QHBoxLayout;
  lists->setSpacing(4);
  lists->setContentsMargins(4, 4, 4, 4);
  for (QComboBox* list : {objects_, procedures_}) {
    list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    list->setMaxVisibleItems(24);
    lists->addWidget(list, 1);
  }
  auto* layout = new QVBoxLayout(this);
  layout->setSpacing(0);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(lists);
  layout->addWidget(editor_, 1);
  setFocusProxy(editor_);

  new VbHighlighter(editor_->document());
  Load();
  ConnectAct(editor_->document(), &QTextDocument::contentsChange, this,
             [this](int at, int, int added) { TakeEdit(at, added); });
  ConnectAct(editor_, &QPlainTextEdit::cursorPositionChanged, this, &CodePane::TakeSelection);
  ConnectAct(editor_, &QPlainTextEdit::selectionChanged, this, &CodePane::TakeSelection);
  connect(editor_, &CodeEditor::Focused, this, &CodePane::Activated);
  connect(editor_, &CodeEditor::Refused, this, [this](const QString& text) {
    emit Told(tr("Not entered: \"%1\" has a character that code page %2 does not hold.")
                  .arg(text.left(40))
                  .arg(runtime::AnsiCodePage().Number()));
  });
  ConnectAct(objects_, &QComboBox::activated, this, &CodePane::FillProcedures);
  ConnectAct(procedures_, &QComboBox::activated, this, [this](int) { GoTo(procedures_->currentData().toInt()); });
  list_timer_.setSingleShot(true);
  list_timer_.setInterval(kListDelay);
  ConnectAct(&list_timer_, &QTimer::timeout, this, &CodePane::RefreshLists);
  RefreshLists();
}

void CodePane::Load() {
  const QScopedValueRollback<bool> following(following_, true);
  QString text;
  const long count = code_->CountOfLines();
  for (long line = 1; line <= count; ++line) {
    if (line > 1) text += '\n';
    text += ToShown(module_->LineView(line));
  }
  editor_->setPlainText(text);
  blocks_ = editor_->document()->blockCount();
  TakeEmptiness();
}

// An empty document is a module without lines or with an empty one, whichever it was before.
void CodePane::TakeEmptiness() {
  if (editor_->document()->isEmpty()) lines_when_empty_ = code_->CountOfLines();
}

void CodePane::LoadAgainLater() {
  ActLater(this, [this] {
    const int line = editor_->textCursor().blockNumber() + 1;
    Load();
    GoTo(line);
  });
}

// The document knows its changes by characters; the module takes them by lines. What lies outside the changed blocks is
// the same as before, so the number of lines that went is known from the number of blocks.
void CodePane::TakeEdit(int at, int added) {
  QTextDocument* document = editor_->document();
  const int blocks = document->blockCount(), before = std::exchange(blocks_, blocks);
  if (following_) return;
  last_act_ = 0;
  joins_last_step_ = false;
  const long first = document->findBlock(at).blockNumber();
  const long last = document->findBlock(std::min(at + added, document->characterCount() - 1)).blockNumber();
  std::vector<std::string> lines;
  QTextBlock block = document->findBlockByNumber(static_cast<int>(first));
  for (long number = first; number <= last; ++number, block = block.next()) {
    auto bytes = ToBytes(block.text());
    if (!bytes) return LoadAgainLater();
    lines.push_back(std::move(*bytes));
  }
  ReplaceInModule(first + 1, last - first + 1 - (blocks - before), lines);
}

// Hands the module only the lines that differ: a change of colours or an undone edit may name more.
void CodePane::ReplaceInModule(long first, long removed, const std::vector<std::string>& lines) {
  const long count = code_->CountOfLines();
  removed = std::clamp(removed, 0L, std::max(0L, count - first + 1));
  if (count == 0 && lines.size() == 1 && lines[0].empty()) return;
  size_t begin = 0, end = lines.size();
  if (editor_->document()->isEmpty() && lines_when_empty_ == 0) end = 0;
  while (begin < end && removed > 0 && module_->LineView(first) == lines[begin]) ++begin, ++first, --removed;
  while (begin < end && removed > 0 && module_->LineView(first + removed - 1) == lines[end - 1]) --end, --removed;
  if (begin == end && removed == 0) return;

  const QScopedValueRollback<bool> leading(leading_, true);
  const bool taken = UserAct(
      [&] {
        if (begin == end)
          code_->DeleteLines(first, removed);
        else
          module_->ReplaceLines(first, removed, Joined({lines.begin() + begin, lines.begin() + end}));
      },
      [&](const QString& why) { emit Told(tr("The module did not take this change: %1").arg(why)); });
  if (!taken || std::max(1L, code_->CountOfLines()) != blocks_) LoadAgainLater();
  TakeSelection();
  list_timer_.start();
}

void CodePane::LinesChanged(long start, long removed, long inserted, long act) {
  list_timer_.start();
  if (leading_) return;
  const QScopedValueRollback<bool> following(following_, true);
  const long count = code_->CountOfLines();
  const bool was_empty = count - inserted + removed == 0, is_empty = count == 0;
  QString text;
  for (long line = start; line < start + inserted; ++line)
    text += (line > start ? "\n" : "") + ToShown(module_->LineView(line));

  QTextDocument* document = editor_->document();
  QTextCursor cursor(document);
  const bool joins = joins_last_step_ || (act != 0 && act == last_act_);
  last_act_ = act;
  joins ? cursor.joinPreviousEditBlock() : cursor.beginEditBlock();
  if (was_empty || is_empty) {
    cursor.select(QTextCursor::Document);
    cursor.insertText(text);
  } else {
    const bool at_end = start - 1 + removed >= document->blockCount();
    const QTextBlock first = document->findBlockByNumber(static_cast<int>(start - 1));
    const QTextBlock behind = document->findBlockByNumber(static_cast<int>(start - 1 + removed));
    const int end = document->characterCount() - 1;
    // Whole lines with their ends: at the end of the text it is the line end in front of them that comes or goes.
    int from = first.isValid() ? first.position() : end;
    const bool at_start = at_end && from == 0 && first.isValid();
    if (at_end && from > 0 && first.isValid()) --from;
    cursor.setPosition(from);
    cursor.setPosition(at_end ? end : behind.position(), QTextCursor::KeepAnchor);
    if (inserted > 0 && !at_start) text = at_end ? '\n' + text : text + '\n';
    cursor.insertText(text);
  }
  cursor.endEditBlock();
  if (!joins_last_step_) {
    joins_last_step_ = true;
    QTimer::singleShot(0, this, [this] { joins_last_step_ = false; });
  }
  TakeEmptiness();
  if (std::max(1L, count) != blocks_) LoadAgainLater();
}

void CodePane::TakeSelection() {
  if (following_) return;
  const QTextCursor cursor = editor_->textCursor();
  const QTextDocument* document = editor_->document();
  const QTextBlock from = document->findBlock(cursor.selectionStart()), to = document->findBlock(cursor.selectionEnd());
  host::PassOverErrors([&] {
    module_->UserSelection({from.blockNumber() + 1, ColumnOf(from, cursor.selectionStart() - from.position()),
                            to.blockNumber() + 1, ColumnOf(to, cursor.selectionEnd() - to.position())});
  });
  ShowPlace();
  emit Moved();
}

void CodePane::SelectionSet() {
  const QScopedValueRollback<bool> following(following_, true);
  const host::Selection selection = module_->PaneSelection();
  const auto position = [&](long line, long column) {
    const QTextBlock block = editor_->document()->findBlockByNumber(static_cast<int>(line - 1));
    if (!block.isValid()) return editor_->document()->characterCount() - 1;
    return PositionOf(block, line <= code_->CountOfLines() ? module_->LineView(line) : std::string_view(), column);
  };
  QTextCursor cursor(editor_->document());
  cursor.setPosition(position(selection.start_line, selection.start_column));
  cursor.setPosition(position(selection.end_line, selection.end_column), QTextCursor::KeepAnchor);
  editor_->ShowCursor(cursor);
  ShowPlace();
  emit Moved();
}

void CodePane::ControlsChanged() {
  list_timer_.start();
}

bool CodePane::FindNext(const QString& text, bool match_case, bool whole_word) {
  QTextDocument::FindFlags flags;
  flags.setFlag(QTextDocument::FindCaseSensitively, match_case);
  flags.setFlag(QTextDocument::FindWholeWords, whole_word);
  QTextCursor found = editor_->document()->find(text, editor_->textCursor(), flags);
  if (found.isNull()) found = editor_->document()->find(text, 0, flags);
  if (found.isNull()) return false;
  editor_->ShowCursor(found);
  return true;
}

void CodePane::GoToObject(const std::string& object) {
  RefreshLists();
  for (const Procedure& procedure : known_)
    if (object.empty() || runtime::UCase(procedure.Object()) == runtime::UCase(object)) return GoTo(procedure.body);
}

void CodePane::GoTo(long line) {
  const QTextBlock block = editor_->document()->findBlockByNumber(static_cast<int>(line - 1));
  if (!block.isValid()) return;
  editor_->ShowCursor(QTextCursor(block));
  editor_->setFocus();
}

void CodePane::RefreshLists() {
  known_ = ProceduresOf(*code_);
  FillObjects();
  ShowPlace();
}

void CodePane::FillObjects() {
  const QScopedValueRollback<bool> filling(filling_, true);
  objects_->clear();
  objects_->addItem(tr("(General)"));
  for (const std::string& object : ObjectsOf(*module_)) objects_->addItem(ToLabel(object));
}

// The procedures of the chosen object; under (General) those of none.
void CodePane::FillProcedures() {
  const QScopedValueRollback<bool> filling(filling_, true);
  procedures_->clear();
  const bool general = objects_->currentIndex() <= 0;
  if (general) procedures_->addItem(tr("(Declarations)"), 1);
  for (const Procedure& procedure : known_) {
    const int object = objects_->findText(ToLabel(procedure.Object()), Qt::MatchFixedString);
    if ((general && object <= 0) || (!general && object == objects_->currentIndex()))
      procedures_->addItem(ToLabel(procedure.Title(!general)), static_cast<int>(procedure.body));
  }
}

// The combo boxes tell where the cursor stands.
void CodePane::ShowPlace() {
  if (filling_) return;
  const long line = editor_->textCursor().blockNumber() + 1;
  const Procedure* here = nullptr;
  for (const Procedure& procedure : known_)
    if (procedure.start <= line && line <= procedure.end) here = &procedure;
  const int object = here ? objects_->findText(ToLabel(here->Object()), Qt::MatchFixedString) : 0;
  objects_->setCurrentIndex(std::max(0, object));
  FillProcedures();
  procedures_->setCurrentIndex(here ? procedures_->findData(static_cast<int>(here->body)) : 0);
}

void CodePane::closeEvent(QCloseEvent* event) {
  event->accept();
  emit Closed();
}

}  // namespace corvane::desk
