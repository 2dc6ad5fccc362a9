#include "desk/code_editor.h"

#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <cstring>

#include "desk/ansi_text.h"
#include "desk/clipboard_text.h"
#include "runtime/strings.h"

namespace corvane::desk {

namespace {

constexpr int kTabColumns = 4;
constexpr double kCodeFontPoints = 10;
constexpr int kGutterMargin = 6;  // logical pixels on each side of the number

class Gutter : public QWidget {
 public:
  explicit Gutter(CodeEditor* editor) : QWidget(editor), editor_(editor) {}
  QSize sizeHint() const override { return {editor_->GutterWidth(), 0}; }

 protected:
  void paintEvent(QPaintEvent* event) override { editor_->PaintGutter(event); }

 private:
  CodeEditor* editor_;
};

QString ShownLines(const std::string& bytes) {
  QString shown;
  for (size_t from = 0; from <= bytes.size();) {
    const size_t end = std::min(bytes.find('\n', from), bytes.size());
    const bool with_return = end > from && end < bytes.size() && bytes[end - 1] == '\r';
    if (from > 0) shown += '\n';
    shown += ToShown(std::string_view(bytes).substr(from, end - from - (with_return ? 1 : 0)));
    from = end + 1;
  }
  return shown;
}

}  // namespace

QFont CodeFont() {
  QFont font;
  font.setFamilies({"Liberation Mono", "Courier New", "DejaVu Sans Mono", "monospace"});
  font.setFixedPitch(true);
  font.setStyleHint(QFont::Monospace);
  font.setPointSizeF(kCodeFontPoints);
  return font;
}

CodeEditor::CodeEditor(QWidget* parent) : QPlainTextEdit(parent), gutter_(new Gutter(this)) {
  setFont(CodeFont());
  setLineWrapMode(NoWrap);
  setTabStopDistance(kTabColumns * fontMetrics().horizontalAdvance(' '));
  setFrameShape(NoFrame);
  setCenterOnScroll(false);
  connect(this, &QPlainTextEdit::blockCountChanged, this, &CodeEditor::PlaceGutter);
  connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect& area, int dy) {
    dy ? gutter_->scroll(0, dy) : gutter_->update(0, area.y(), gutter_->width(), area.height());
  });
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CodeEditor::MarkCurrentLine);
  PlaceGutter();
  MarkCurrentLine();
}

int CodeEditor::GutterWidth() const {
  const int digits = std::max<int>(3, QString::number(blockCount()).size());
  return 2 * kGutterMargin + digits * fontMetrics().horizontalAdvance('9');
}

void CodeEditor::PaintGutter(QPaintEvent* event) {
  QPainter painter(gutter_);
  painter.fillRect(event->rect(), palette().color(QPalette::AlternateBase));
  painter.setFont(font());
  const int current = textCursor().blockNumber();
  QTextBlock block = firstVisibleBlock();
  qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
  for (; block.isValid() && top <= event->rect().bottom(); block = block.next()) {
    const bool is_current = block.blockNumber() == current;
    painter.setPen(palette().color(is_current ? QPalette::Text : QPalette::PlaceholderText));
    painter.drawText(QRectF(0, top, gutter_->width() - kGutterMargin, fontMetrics().height()),
                     Qt::AlignRight | Qt::AlignTop, QString::number(block.blockNumber() + 1));
    top += blockBoundingRect(block).height();  // of the last one with the margin below the text
  }
}

// Looks first: setting the cursor alone scrolls it to the edge.
void CodeEditor::ShowCursor(const QTextCursor& cursor) {
  const bool in_sight = was_painted_ && IsInSight(cursor.blockNumber());
  setTextCursor(cursor);
  if (!in_sight) centerCursor();
}

// Lines do not wrap: the bar counts them.
bool CodeEditor::IsInSight(int line) const {
  const QScrollBar* bar = verticalScrollBar();
  return line >= bar->value() && line < bar->value() + bar->pageStep();
}

void CodeEditor::paintEvent(QPaintEvent* event) {
  was_painted_ = true;
  QPlainTextEdit::paintEvent(event);
}

bool CodeEditor::Takes(const QString& typed) {
  if (IsInCodePage(typed)) return true;
  emit Refused(typed);
  return false;
}

void CodeEditor::keyPressEvent(QKeyEvent* event) {
  // Qt's line within a line is none in a module.
  if (event->matches(QKeySequence::InsertLineSeparator)) {
    QKeyEvent plain(event->type(), Qt::Key_Return, Qt::NoModifier, "\r");
    return QPlainTextEdit::keyPressEvent(&plain);
  }
  const QString typed = event->text();
  const bool prints = !typed.isEmpty() && typed.at(0).isPrint() && !(event->modifiers() & Qt::ControlModifier);
  if (!prints || Takes(typed)) QPlainTextEdit::keyPressEvent(event);
}

void CodeEditor::inputMethodEvent(QInputMethodEvent* event) {
  if (Takes(event->commitString())) QPlainTextEdit::inputMethodEvent(event);
}

// The bytes behind what is shown. Qt's own plain text would have a blank for each no-break space.
QMimeData* CodeEditor::createMimeDataFromSelection() const {
  const QString shown = textCursor().selectedText();
  std::string bytes;
  for (const QString& line : shown.split(QChar::ParagraphSeparator)) {
    const auto code = ToBytes(line);
    if (!code) return QPlainTextEdit::createMimeDataFromSelection();
    bytes += *code + runtime::kCrLf;
  }
  bytes.erase(bytes.size() - std::strlen(runtime::kCrLf));
  return MimeOfText(bytes).release();
}

void CodeEditor::insertFromMimeData(const QMimeData* source) {
  if (!ExactTextOf(*source) && (!source->hasText() || !Takes(source->text()))) return;
  insertPlainText(ShownLines(TextOf(*source)));
  ensureCursorVisible();
}

void CodeEditor::focusInEvent(QFocusEvent* event) {
  QPlainTextEdit::focusInEvent(event);
  emit Focused();
}

void CodeEditor::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);
  PlaceGutter();
  if (!was_painted_) centerCursor();
}

void CodeEditor::PlaceGutter() {
  setViewportMargins(GutterWidth(), 0, 0, 0);
  const QRect inside = contentsRect();
  gutter_->setGeometry(inside.left(), inside.top(), GutterWidth(), inside.height());
}

void CodeEditor::MarkCurrentLine() {
  QTextEdit::ExtraSelection line;
  line.format.setBackground(QColor(0xF2, 0xF6, 0xFC));
  line.format.setProperty(QTextFormat::FullWidthSelection, true);
  line.cursor = textCursor();
  line.cursor.clearSelection();
  setExtraSelections({line});
  gutter_->update();
}

}  // namespace corvane::desk
