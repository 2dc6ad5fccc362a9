// Documents of the desk, printed into files.
#include "desk/qt_printer.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace corvane::desk {
namespace {

class QtPrinterTest : public testing::Test {
 protected:
  QString File() const { return folder_.filePath("deep/er/code.pdf"); }
  QByteArray Bytes() const {
    QFile file(File());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  long Pages() const { return Bytes().count("/Type /Page\n"); }

  QTemporaryDir folder_;
  PrintTarget target_{{}, File()};
  QtPrinter printer_{[this] { return target_; }};
};

TEST_F(QtPrinterTest, PrintsADocumentIntoAFile) {
  PrintTarget told;
  printer_.printed = [&](const PrintTarget& where) { told = where; };
  printer_.SetFontSize(10);
  printer_.SetCurrentX(400);
  printer_.Print("x = \"\xE4\"");
  printer_.Print("");
  printer_.EndDoc();
  EXPECT_TRUE(Bytes().startsWith("%PDF"));
  EXPECT_EQ(Pages(), 1);
  EXPECT_EQ(told.file, File());
  EXPECT_EQ(printer_.FontSize(), 10);
}

TEST_F(QtPrinterTest, GoesOnOnANewPageWhereOneIsFull) {
  for (int line = 0; line < 200; ++line) printer_.Print("line");
  printer_.EndDoc();
  const long at_twelve_points = Pages();
  EXPECT_GE(at_twelve_points, 3);
  EXPECT_LE(at_twelve_points, 5);
  printer_.SetFontSize(6);
  for (int line = 0; line < 200; ++line) printer_.Print("line");
  printer_.EndDoc();
  EXPECT_LT(Pages(), at_twelve_points) << "of small lines more stand on a page";
}

TEST_F(QtPrinterTest, WithoutATextThereIsNoDocument) {
  printer_.EndDoc();
  EXPECT_FALSE(QFileInfo::exists(File()));
}

TEST_F(QtPrinterTest, WhereNothingCanBeWrittenItIsError482) {
  target_.file = "/dev/null/code.pdf";
  const auto number_of = [](auto&& act) {
    try {
      act();
    } catch (const runtime::Error& error) {
      return error.Number();
    }
    return 0L;
  };
  EXPECT_EQ(number_of([&] { printer_.Print("text"); }), 482);
  EXPECT_EQ(number_of([&] { printer_.Print("text"); }), 482);
  EXPECT_EQ(number_of([&] { printer_.EndDoc(); }), 482);
  target_.file = File();
  printer_.Print("text");
  printer_.EndDoc();
  EXPECT_EQ(Pages(), 1) << "the next document is another one";
}

TEST_F(QtPrinterTest, TheFileOfAMachineWithoutAPrinterIsANewOne) {
  const PrintTarget target = DefaultPrintTarget();
  if (!target.printer.isEmpty()) {
    EXPECT_TRUE(target.file.isEmpty());
    return;
  }
  EXPECT_TRUE(target.file.endsWith(".pdf"));
  EXPECT_FALSE(QFileInfo::exists(target.file));
}

}  // namespace
}  // namespace corvane::desk
