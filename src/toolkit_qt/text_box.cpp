// TextBox: a line edit, or a plain text edit for many lines.
#include "forms/text_box.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextDocument>

#include "toolkit_qt/colors.h"
#include "toolkit_qt/painted.h"
#include "toolkit_qt/peer.h"
#include "toolkit_qt/peers.h"
#include "toolkit_qt/texts.h"
#include "toolkit_qt/toolkit.h"

namespace corvane::toolkit_qt {
namespace {

Qt::Alignment ShownAlignment(forms::Alignment alignment) {
  switch (alignment) {
    case forms::Alignment::Right:
      return Qt::AlignRight | Qt::AlignVCenter;
    case forms::Alignment::Center:
      return Qt::AlignHCenter | Qt::AlignVCenter;
    default:
      return Qt::AlignLeft | Qt::AlignVCenter;
  }
}

// Positions on the screen count characters and one for a line end; those of the control bytes, two for a line end.
long ByteAt(const QString& shown, int position) {
  return static_cast<long>(BytesOfLines(shown.left(position)).size());
}
int PositionAt(const std::string& bytes, long byte) {
  return static_cast<int>(ShownLines(std::string_view(bytes).substr(0, static_cast<size_t>(byte))).size());
}

struct Range {
  int from, to;
};
Range SelectionOf(const forms::TextBox& box) {
  return {PositionAt(box.Text(), box.SelStart()), PositionAt(box.Text(), box.SelStart() + box.SelLength())};
}

class LinePeer : public ControlPeer {
 public:
  LinePeer(QtToolkit& toolkit, forms::TextBox& box)
      : ControlPeer(toolkit, box), box_(box), edit_(new QLineEdit(InsideOf(box.ContainerOf()))) {
    edit_->setTextMargins(0, -1, 0, -1);
    SetWidget(edit_, Input::Mouse::ActsLast);
    QObject::connect(edit_, &QLineEdit::textEdited, input_.get(),
                     [this] { ReportThenShow(forms::Property::Text, [this] { Tell(); }); });
    const auto selected = [this] { Report([this] { TellSelection(); }); };
    QObject::connect(edit_, &QLineEdit::selectionChanged, input_.get(), selected);
    QObject::connect(edit_, &QLineEdit::cursorPositionChanged, input_.get(), selected);
  }

 protected:
  void ShowColors() override { edit_->setPalette(FieldPalette(box_.BackColor(), box_.ForeColor())); }
  void ShowOwn(forms::Property property) override {
    const QSignalBlocker quiet(edit_);
    using forms::Property;
    edit_->setReadOnly(box_.Locked());
    edit_->setMaxLength(box_.MaxLength() > 0 ? box_.MaxLength() : kNoLimit);
    edit_->setFrame(box_.BorderStyle() != 0);
    edit_->setAlignment(ShownAlignment(box_.Alignment()));
    edit_->setEchoMode(box_.PasswordChar().empty() ? QLineEdit::Normal : QLineEdit::Password);
    if (const QString text = ShownText(box_.Text()); text != edit_->text()) edit_->setText(text);
    if (property == Property::All || property == Property::Text || property == Property::SelStart ||
        property == Property::SelLength) {
      ShowSelection();
    }
  }

 private:
  static constexpr int kNoLimit = 32767;
  void ShowSelection() {
    const Range range = SelectionOf(box_);
    if (edit_->cursorPosition() == range.from && range.from == range.to && !edit_->hasSelectedText()) return;
    edit_->setCursorPosition(range.from);
    if (range.to > range.from) edit_->setSelection(range.from, range.to - range.from);
  }
  struct Selection {
    long start, length;
  };
  Selection Selected() const {
    const int from = edit_->hasSelectedText() ? edit_->selectionStart() : edit_->cursorPosition();
    const long start = ByteAt(edit_->text(), from);
    return {start, ByteAt(edit_->text(), from + edit_->selectionLength()) - start};
  }
  void Tell() {
    const auto [start, length] = Selected();
    box_.UserEdit(BytesOf(edit_->text()), start, length);
  }
  // While an edit is not told yet the positions belong to the new text.
  void TellSelection() {
    if (edit_->text() != ShownText(box_.Text())) return;
    const auto [start, length] = Selected();
    box_.UserSelect(start, length);
  }
  forms::TextBox& box_;
  QLineEdit* edit_;
};

// A text of many lines with a frame of its own: the style's is hidden in part by the text where pixels of the window
// are not whole ones of the display.
class LinesEdit : public QPlainTextEdit {
 public:
  explicit LinesEdit(QWidget* parent) : QPlainTextEdit(parent) {
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(1);
  }
  void SetFramed(bool framed) {
    if (framed_ == framed) return;
    framed_ = framed;
    const int margin = framed ? kFrame : 0;
    setViewportMargins(margin, margin, margin, margin);
  }

 protected:
  bool event(QEvent* event) override {
    if (event->type() != QEvent::Paint || !framed_) return QPlainTextEdit::event(event);
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    PaintSunkenFrame(painter, rect());
    return true;
  }

 private:
  static constexpr int kFrame = 2;  // logical pixels, line and room
  bool framed_ = false;
};

class LinesPeer : public ControlPeer {
 public:
  LinesPeer(QtToolkit& toolkit, forms::TextBox& box)
      : ControlPeer(toolkit, box), box_(box), edit_(new LinesEdit(InsideOf(box.ContainerOf()))) {
    SetWidget(edit_, Input::Mouse::Untold);
    input_->Watch(*edit_->viewport(), *edit_, Input::Mouse::ActsLast);
    edit_->setTabChangesFocus(false);
    QObject::connect(edit_, &QPlainTextEdit::textChanged, input_.get(),
                     [this] { ReportThenShow(forms::Property::Text, [this] { Tell(); }); });
    const auto selected = [this] { Report([this] { TellSelection(); }); };
    QObject::connect(edit_, &QPlainTextEdit::selectionChanged, input_.get(), selected);
    QObject::connect(edit_, &QPlainTextEdit::cursorPositionChanged, input_.get(), selected);
  }

 protected:
  void ShowColors() override { edit_->setPalette(FieldPalette(box_.BackColor(), box_.ForeColor())); }
  void ShowOwn(forms::Property property) override {
    const QSignalBlocker quiet(edit_);
    using forms::Property;
    constexpr auto kReads = Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;
    edit_->setTextInteractionFlags(box_.Locked() ? Qt::TextInteractionFlags(kReads)
                                                 : Qt::TextInteractionFlags(Qt::TextEditorInteraction));
    edit_->SetFramed(box_.BorderStyle() != 0);
    ShowScrollBars();
    if (const QString text = ShownLines(box_.Text()); text != edit_->toPlainText()) edit_->setPlainText(text);
    if (property == Property::All || property == Property::Text || property == Property::SelStart ||
        property == Property::SelLength) {
      ShowSelection();
    }
  }
  // A line without a horizontal bar breaks at the edge.
  void ShowScrollBars() {
    const bool sideways = box_.ScrollBars() & 1, upright = box_.ScrollBars() & 2;
    edit_->setLineWrapMode(sideways ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
    edit_->setHorizontalScrollBarPolicy(sideways ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    edit_->setVerticalScrollBarPolicy(upright ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  }

 private:
  void ShowSelection() {
    const Range range = SelectionOf(box_);
    QTextCursor cursor = edit_->textCursor();
    if (cursor.selectionStart() == range.from && cursor.selectionEnd() == range.to) return;
    cursor.setPosition(range.from);
    cursor.setPosition(range.to, QTextCursor::KeepAnchor);
    edit_->setTextCursor(cursor);
  }
  struct Selection {
    long start, length;
  };
  Selection Selected(const QString& text) const {
    const QTextCursor cursor = edit_->textCursor();
    const long start = ByteAt(text, cursor.selectionStart());
    return {start, ByteAt(text, cursor.selectionEnd()) - start};
  }
  void Tell() {
    QString text = edit_->toPlainText();
    const auto [start, length] = Selected(text);
    std::string bytes = BytesOfLines(text);
    if (box_.MaxLength() > 0 && bytes.size() > static_cast<size_t>(box_.MaxLength())) bytes = box_.Text();
    box_.UserEdit(std::move(bytes), start, length);
  }
  void TellSelection() {
    const QString text = edit_->toPlainText();
    if (text != ShownLines(box_.Text())) return;
    const auto [start, length] = Selected(text);
    box_.UserSelect(start, length);
  }
  forms::TextBox& box_;
  LinesEdit* edit_;
};

}  // namespace

NewPeer NewTextBoxPeer(QtToolkit& toolkit, forms::TextBox& box) {
  return std::make_unique<RemadePeer>([&box] { return box.MultiLine(); },
                                      [&toolkit, &box]() -> std::unique_ptr<ControlPeer> {
                                        if (box.MultiLine()) return std::make_unique<LinesPeer>(toolkit, box);
                                        return std::make_unique<LinePeer>(toolkit, box);
                                      });
}

}  // namespace corvane::toolkit_qt
