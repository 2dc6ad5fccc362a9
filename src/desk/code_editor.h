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
  // Sets the cursor. Scrolls only when it is out of sight there; then it stands in the middle, and stays there while
  // the window finds its size.
  void ShowCursor(const QTextCursor& cursor);

 signals:
  void Refused(const QString& text);  // typed or pasted, but not in the code page
  void Focused();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  QMimeData* createMimeDataFromSelection() const override;
  void insertFromMimeData(const QMimeData* source) override;
  void focusInEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  bool Takes(const QString& typed);
  bool IsInSight(int line) const;
  void MarkCurrentLine();
  void PlaceGutter();
  QWidget* gutter_;
  bool was_painted_ = false;
};

}  // namespace corvane::desk
