// CodeEditor: the text field of a code pane, with line numbers and the current line marked. It takes only what the code
// page can hold.
#pragma once

#include <QPlainTextEdit>

namespace corvane::desk {

// The fixed-pitch font of code and lists.
QFont CodeFont();

class CodeEditor : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit CodeEditor(QWidget* parent = nullptr);
  int GutterWidth() const;
  void PaintGutter(QPaintEvent* event);
  // Scrolls only when the cursor is out of sight; then it stands in the middle.
  void ShowCursor();

 signals:
  void Refused(const QString& text);  // typed or pasted, but not in the code page
  void Focused();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
  void focusInEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  bool Takes(const QString& typed);
  void MarkCurrentLine();
  void PlaceGutter();
  QWidget* gutter_;
};

}  // namespace corvane::desk
