#include "desk/qt_services.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>

#include "cli/plain_services.h"
#include "desk/ansi_text.h"
#include "desk/clipboard_text.h"
#include "desk/picture_image.h"
#include "desk/send_keys.h"
#include "desk/user_settings.h"
#include "environment/disk_files.h"

namespace corvane::desk {

namespace {

// Other programs take a plain image; what this program put there comes back as it was.
constexpr char kExactPicture[] = "application/x-corvane-picture";

QByteArray ToByteArray(const std::string& bytes) {
  return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

class SystemClipboard : public host::Clipboard {
 public:
  void Clear() override { QGuiApplication::clipboard()->clear(); }

  std::string GetText() override {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data ? TextOf(*data) : std::string();
  }

  void SetText(const std::string& text) override {
    QGuiApplication::clipboard()->setMimeData(MimeOfText(text).release());
  }

  void SetData(const runtime::PictureRef& picture) override {
    if (!picture) return Clear();
    auto data = std::make_unique<QMimeData>();
    data->setImageData(ImageOf(picture));
    data->setData(kExactPicture, ToByteArray(picture->bytes));
    QGuiApplication::clipboard()->setMimeData(data.release());
  }

  runtime::PictureRef GetData() override {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (!data) return nullptr;
    if (data->hasFormat(kExactPicture)) return PictureFrom(data->data(kExactPicture));
    if (!data->hasImage()) return nullptr;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    data->imageData().value<QImage>().save(&buffer, "BMP");
    return PictureFrom(bytes);
  }

 private:
  static runtime::PictureRef PictureFrom(const QByteArray& bytes) {
    return std::make_shared<runtime::Picture>(runtime::Picture{bytes.toStdString()});
  }
};

struct ButtonAnswer {
  QMessageBox::StandardButton button;
  long answer;
};
constexpr ButtonAnswer kAnswers[] = {
    {QMessageBox::Ok, host::vbOK},       {QMessageBox::Cancel, host::vbCancel}, {QMessageBox::Abort, host::vbAbort},
    {QMessageBox::Retry, host::vbRetry}, {QMessageBox::Ignore, host::vbIgnore}, {QMessageBox::Yes, host::vbYes},
    {QMessageBox::No, host::vbNo},
};

QMessageBox::StandardButtons ButtonsOf(long style) {
  switch (style & 15) {
    case host::vbOKCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case host::vbAbortRetryIgnore:
      return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    case host::vbYesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case host::vbYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case host::vbRetryCancel:
      return QMessageBox::Retry | QMessageBox::Cancel;
    default:
      return QMessageBox::Ok;
  }
}

QMessageBox::Icon IconOfStyle(long style) {
  switch (style & 0x70) {
    case host::vbCritical:
      return QMessageBox::Critical;
    case host::vbQuestion:
      return QMessageBox::Question;
    case host::vbExclamation:
      return QMessageBox::Warning;
    case host::vbInformation:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

// An input dialog whose prompt is no rich text and names no access key.
class PlainInput : public QInputDialog {
 public:
  PlainInput(const QString& title, const std::string& prompt, const std::string& text)
      : QInputDialog(QApplication::activeWindow()) {
    setWindowTitle(title);
    setLabelText(ToLabel(prompt).replace("\r\n", "\n"));
    setTextValue(ToLabel(text));
  }
  void setVisible(bool visible) override {
    QInputDialog::setVisible(visible);
    if (auto* label = findChild<QLabel*>()) {
      label->setTextFormat(Qt::PlainText);
      label->setBuddy(nullptr);
    }
  }
};

// Its text is not selected when it is shown: the caret stands behind it.
class TypedInput : public PlainInput {
 public:
  using PlainInput::PlainInput;
  void setVisible(bool visible) override {
    PlainInput::setVisible(visible);
    if (auto* edit = findChild<QLineEdit*>(); visible && edit) edit->end(false);
  }
};

class MessageBoxes : public host::Prompts {
 public:
  explicit MessageBoxes(const host::App& app) : app_(app) {}

  long MsgBox(const std::string& prompt, long style, const std::string& title) override {
    QMessageBox box(IconOfStyle(style), TitleOr(title), ToLabel(prompt).replace("\r\n", "\n"), ButtonsOf(style),
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    for (const ButtonAnswer& each : kAnswers)
      if (each.answer == cli::DefaultAnswer(style)) box.setDefaultButton(each.button);
    const int chosen = box.exec();
    for (const ButtonAnswer& each : kAnswers)
      if (each.button == chosen) return each.answer;
    return host::vbCancel;
  }

  std::string InputBox(const std::string& prompt, const std::string& title, const std::string& text) override {
    PlainInput box(TitleOr(title), prompt, text);
    return box.exec() == QDialog::Accepted ? FromLabel(box.textValue()) : std::string();
  }

  std::string InputBoxTyped(const std::string& prompt, const std::string& typed) override {
    TypedInput box(TitleOr({}), prompt, typed);
    return box.exec() == QDialog::Accepted ? FromLabel(box.textValue()) : std::string();
  }

 private:
  QString TitleOr(const std::string& title) const { return ToLabel(title.empty() ? app_.Title : title); }
  const host::App& app_;
};

class PointerScreen : public host::Screen {
 public:
  int MousePointer() const override { return pointer_; }
  void SetMousePointer(int pointer) override {
    if (pointer_ != host::vbDefault) QGuiApplication::restoreOverrideCursor();
    pointer_ = pointer;
    if (pointer_ != host::vbDefault) QGuiApplication::setOverrideCursor(Shape(pointer_));
  }

 private:
  static Qt::CursorShape Shape(int pointer) { return pointer == host::vbHourglass ? Qt::WaitCursor : Qt::ArrowCursor; }
  int pointer_ = host::vbDefault;
};

class QtLoop : public host::EventLoop {
 public:
  void DoEvents() override { QCoreApplication::processEvents(); }
  void SendKeys(const std::string& keys) override { PressKeys(ParseKeys(keys)); }
  uint32_t TickCount() override { return cli::MillisecondsSinceStart(); }
};

}  // namespace

struct QtServices::State {
  SystemClipboard clipboard;
  host::App app = cli::NewApp();
  MessageBoxes prompts{app};
  UserSettings settings;
  PointerScreen screen;
  QtLoop loop;
  std::unique_ptr<host::Files> files = environment::NewDiskFiles();
  std::unique_ptr<host::Pictures> pictures = cli::NewPictures(*files);
  QtPrinter printer;
};

QtServices::QtServices() : state_(std::make_unique<State>()) {}

QtServices::~QtServices() = default;

QtServices::operator host::Services() const {
  State& s = *state_;
  return {s.clipboard, s.prompts, s.settings, s.app, s.screen, s.loop, *s.files, *s.pictures, s.printer};
}

host::Clipboard& QtServices::Clipboard() const {
  return state_->clipboard;
}
host::Files& QtServices::Files() const {
  return *state_->files;
}
host::Prompts& QtServices::Prompts() const {
  return state_->prompts;
}
QtPrinter& QtServices::Printer() const {
  return state_->printer;
}

}  // namespace corvane::desk
