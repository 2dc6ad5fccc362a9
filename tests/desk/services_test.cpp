// The services of both homes of the desk: with a display and on the command line.
#include <QApplication>
#include <QClipboard>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

#include "cli/plain_services.h"
#include "desk/picture_image.h"
#include "desk/qt_services.h"
#include "desk/user_settings.h"
#include "environment/disk_files.h"
#include "runtime/code_page.h"

namespace corvane::desk {
namespace {

TEST(Clipboard, TextComesBackByteForByte) {
  QtServices services;
  services.Clipboard().SetText("one\r\ntwo\nthree \x81\xE9");
  EXPECT_EQ(services.Clipboard().GetText(), "one\r\ntwo\nthree \x81\xE9");
}

TEST(Clipboard, OtherProgramsSeeLineFeedsAndTheirTextGetsCrLf) {
  QtServices services;
  services.Clipboard().SetText("one\r\ntwo");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "one\ntwo");
  QGuiApplication::clipboard()->setText(QString::fromUtf8("é\nb"));
  EXPECT_EQ(services.Clipboard().GetText(), "\xE9\r\nb");
}

TEST(Clipboard, APictureReplacesTextAndClearEmptiesIt) {
  QtServices services;
  services.Clipboard().SetText("text");
  const auto picture = std::make_shared<runtime::Picture>(runtime::Picture{"BM not really"});
  services.Clipboard().SetData(picture);
  EXPECT_EQ(services.Clipboard().GetText(), "");
  ASSERT_TRUE(services.Clipboard().GetData());
  EXPECT_EQ(services.Clipboard().GetData()->bytes, picture->bytes);
  services.Clipboard().Clear();
  EXPECT_FALSE(services.Clipboard().GetData());
}

// Answers the next message box by a button, and keeps what it said.
struct Answer {
  explicit Answer(QMessageBox::StandardButton button) {
    QTimer::singleShot(0, [this, button] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      text = box->text();
      title = box->windowTitle();
      buttons = box->standardButtons();
      default_button = box->standardButton(box->defaultButton());
      box->button(button)->click();
    });
  }
  QString text, title;
  QMessageBox::StandardButtons buttons;
  QMessageBox::StandardButton default_button = QMessageBox::NoButton;
};

TEST(MsgBox, HasTheButtonsOfItsStyleAndReturnsTheOneThatWasPressed) {
  QtServices services;
  struct Case {
    long style;
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton pressed, default_button;
    long answer;
  };
  using Box = QMessageBox;
  const Case cases[] = {
      {host::vbOKOnly, Box::Ok, Box::Ok, Box::Ok, host::vbOK},
      {host::vbOKCancel | host::vbQuestion, Box::Ok | Box::Cancel, Box::Cancel, Box::Ok, host::vbCancel},
      {host::vbAbortRetryIgnore, Box::Abort | Box::Retry | Box::Ignore, Box::Ignore, Box::Abort, host::vbIgnore},
      {host::vbYesNoCancel | host::vbDefaultButton2, Box::Yes | Box::No | Box::Cancel, Box::No, Box::No, host::vbNo},
      {host::vbYesNo | host::vbDefaultButton2, Box::Yes | Box::No, Box::Yes, Box::No, host::vbYes},
      {host::vbRetryCancel, Box::Retry | Box::Cancel, Box::Retry, Box::Retry, host::vbRetry},
  };
  for (const Case& each : cases) {
    Answer answer(each.pressed);
    EXPECT_EQ(services.Prompts().MsgBox("Two\r\nlines", each.style), each.answer) << each.style;
    EXPECT_EQ(answer.text, "Two\nlines");
    EXPECT_EQ(answer.title, "Corvane");
    EXPECT_EQ(answer.buttons, each.buttons) << each.style;
    EXPECT_EQ(answer.default_button, each.default_button) << each.style;
  }
}

TEST(InputBox, ReturnsTheTextAndEmptyTextOnCancel) {
  QtServices services;
  const auto answer = [](bool accept) {
    QTimer::singleShot(0, [accept] {
      auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
      ASSERT_TRUE(dialog);
      EXPECT_EQ(dialog->textValue(), "old");
      dialog->setTextValue("new");
      accept ? dialog->accept() : dialog->reject();
    });
  };
  answer(true);
  EXPECT_EQ(services.Prompts().InputBox("Name", "Title", "old"), "new");
  answer(false);
  EXPECT_EQ(services.Prompts().InputBox("Name", "Title", "old"), "");
}

TEST(InputBox, BehindWhatWasTypedTheCaretStands) {
  QtServices services;
  bool selected = true;
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->windowTitle(), "Corvane");
    EXPECT_EQ(dialog->labelText(), "Type");
    auto* edit = dialog->findChild<QLineEdit*>();
    selected = edit->hasSelectedText();
    edit->insert("b");
    dialog->accept();
  });
  EXPECT_EQ(services.Prompts().InputBoxTyped("Type", "\xE4"),
            "\xE4"
            "b");
  EXPECT_FALSE(selected);
  QTimer::singleShot(0, [] { qobject_cast<QInputDialog*>(QApplication::activeModalWidget())->reject(); });
  EXPECT_EQ(services.Prompts().InputBoxTyped("Type", "a"), "");
}

TEST(InputBox, ShowsItsPromptAsItIsWritten) {
  QtServices services;
  bool seen = false;
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(dialog);
    auto* label = dialog->findChild<QLabel*>();
    EXPECT_EQ(label->text(), "Salt & pepper: <b>bold</b>\nmore");
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_FALSE(label->buddy()) << "it would make access keys of the prompt's \"&\"";
    seen = true;
    dialog->reject();
  });
  services.Prompts().InputBox("Salt & pepper: <b>bold</b>\r\nmore");
  EXPECT_TRUE(seen);
}

TEST(Clipboard, AnotherCodePageTakesTheCharactersNotTheBytes) {
  QtServices services;
  runtime::SetAnsiCodePage(1251);
  services.Clipboard().SetText("\xA8");
  runtime::SetAnsiCodePage(1252);
  EXPECT_EQ(services.Clipboard().GetText(), "?") << "a letter that this page does not hold";
  runtime::SetAnsiCodePage(1251);
  EXPECT_EQ(services.Clipboard().GetText(), "\xA8");
  runtime::SetAnsiCodePage(1252);
}

TEST(UserSettings, KeepsAValueAndGivesTheDefaultForAMissingOne) {
  QTemporaryDir folder;
  const QString file = folder.filePath("deep/er/corvane.ini");
  UserSettings settings(file);
  EXPECT_EQ(settings.GetSetting("Corvane", "Settings", "DisplayOnConnect", "0"), "0");
  settings.SaveSetting("Corvane", "Settings", "DisplayOnConnect", "1");
  settings.SaveSetting("Corvane", "A/B\\C", "odd = key", "caf\xE9, \"quoted\"");
  UserSettings again(file);
  EXPECT_EQ(again.GetSetting("Corvane", "Settings", "DisplayOnConnect", "0"), "1");
  EXPECT_EQ(again.GetSetting("Corvane", "A/B\\C", "odd = key", ""), "caf\xE9, \"quoted\"");
}

TEST(UserSettings, LiveInTheUsersConfigurationFolder) {
  EXPECT_EQ(UserSettings().FileName(), qEnvironmentVariable("XDG_CONFIG_HOME") + "/corvane/corvane.ini");
}

TEST(DataFolder, IsTheLibrarysOwnAndHoldsTheButtonsFace) {
  cli::PlainServices plain;
  const host::Services services = plain;
  EXPECT_EQ(services.App.Path, environment::WindowsPath(CORVANE_SOURCE_DIR "/data"));
  EXPECT_EQ(services.App.Title, "Corvane");
  const auto face = services.Pictures.LoadPicture(services.App.Path + "\\corvane.bmp");
  EXPECT_EQ(ImageOf(face).width(), 16);
  EXPECT_EQ(ImageOf(face).height(), 16);
}

TEST(PictureImage, TheLightGreyOfAFaceIsTransparent) {
  cli::PlainServices plain;
  const host::Services services = plain;
  const auto face = services.Pictures.LoadPicture(services.App.Path + "\\corvane.bmp");
  const QImage drawn = FaceOf(face).pixmap(16, 16).toImage();
  long clear = 0, opaque = 0;
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x) ++(qAlpha(drawn.pixel(x, y)) == 0 ? clear : opaque);
  EXPECT_GT(clear, 0);
  EXPECT_GT(opaque, 0);
}

}  // namespace
}  // namespace corvane::desk
