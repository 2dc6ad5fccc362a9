// Documents on a printer of Windows.
#include "toolkit_win32/printer.h"

#include <gtest/gtest.h>
#include <regex>

#include "runtime/error.h"
#include "tests/toolkit_win32/made_printer.h"
#include "tests/toolkit_win32/scratch_folder.h"

namespace corvane::toolkit_win32 {
namespace {

template <class Act>
long NumberOf(Act&& act) {
  try {
    act();
  } catch (const runtime::Error& error) {
    return error.Number();
  }
  return 0;
}

TEST(NoPrinterAtAll, IsError482AtEachTextAndAtTheEnd) {
  const auto printer = NewPrinter([] { return PrintTarget{}; });
  EXPECT_EQ(NumberOf([&] { printer->EndDoc(); }), 0) << "nothing was begun";
  EXPECT_EQ(NumberOf([&] { printer->Print("text"); }), 482);
  EXPECT_EQ(NumberOf([&] { printer->Print("text"); }), 482);
  EXPECT_EQ(NumberOf([&] { printer->EndDoc(); }), 482);
  EXPECT_EQ(NumberOf([&] { printer->EndDoc(); }), 0);
}

TEST(NoPrinterAtAll, OneThatIsNotInstalledIsError482) {
  const auto printer = NewPrinter([] { return PrintTarget{L"no such printer", L""}; });
  EXPECT_EQ(NumberOf([&] { printer->Print("text"); }), 482);
}

class PrinterTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!made_.IsThere()) GTEST_SKIP() << "no printer can be installed here";
  }
  long Pages(const std::wstring& name = kFile) {
    const std::string bytes = folder_.Bytes(name);
    const std::regex page("\nshowpage");
    return std::distance(std::sregex_iterator(bytes.begin(), bytes.end(), page), {});
  }

  static constexpr wchar_t kFile[] = L"code.ps";
  MadePrinter made_;
  ScratchFolder folder_;
  PrintTarget target_{MadePrinter::Name(), folder_.Wide(kFile)};
  std::unique_ptr<host::Printer> printer_ = NewPrinter([this] { return target_; });
};

TEST_F(PrinterTest, PrintsADocumentIntoAFile) {
  printer_->SetFontSize(10);
  printer_->SetCurrentX(400);
  printer_->Print("w = 1");
  printer_->Print("v");
  printer_->EndDoc();
  const std::string bytes = folder_.Bytes(kFile);
  EXPECT_EQ(bytes.substr(0, 4), "%!PS");
  EXPECT_EQ(Pages(), 1);
  EXPECT_TRUE(std::regex_search(bytes, std::regex("\n83 \\d+ moveto"))) << "400 twips at 300 dots an inch";
  EXPECT_TRUE(std::regex_search(bytes, std::regex("\n0 \\d+ moveto"))) << "the next line is at the edge again";
}

TEST_F(PrinterTest, GoesOnOnANewPageWhereOneIsFull) {
  for (int line = 0; line < 200; ++line) printer_->Print("line");
  printer_->EndDoc();
  const long at_twelve_points = Pages();
  EXPECT_GE(at_twelve_points, 3);
  EXPECT_LE(at_twelve_points, 5);
  target_.file = folder_.Wide(L"small.ps");
  printer_->SetFontSize(6);
  for (int line = 0; line < 200; ++line) printer_->Print("line");
  printer_->EndDoc();
  EXPECT_LT(Pages(L"small.ps"), at_twelve_points) << "of small lines more stand on a page";
}

TEST_F(PrinterTest, ADocumentThatIsNeverEndedDoesNotGoOut) {
  printer_->Print("line");
  printer_.reset();
  EXPECT_EQ(folder_.Count(), 0);
}

TEST_F(PrinterTest, APrinterThatAsksForAFileGetsANewOne) {
  const PrintTarget target = DefaultPrintTarget();
  if (target.printer != MadePrinter::Name()) GTEST_SKIP() << "there is another default printer";
  EXPECT_EQ(target.file.substr(target.file.size() - 4), L".prn");
  EXPECT_EQ(GetFileAttributesW(target.file.c_str()), INVALID_FILE_ATTRIBUTES);
}

}  // namespace
}  // namespace corvane::toolkit_win32
