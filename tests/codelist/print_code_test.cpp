// "Print Code" on the default printer.
#include "codelist/list_menu.h"
#include "codelist/reading_commands.h"
#include "list_fixture.h"

namespace corvane::codelist {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using enum ListEntry;

class PrintCode : public ListTest {
 protected:
  void LoadCode(const std::vector<std::string>& lines) {
    list.sGrid("VB");
    list.ListRole = kSourcePane;
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    list.SetText(text);
  }
  void Choose(ListEntry entry) { list.Reading().menu[entry].Click(); }
  void Print() { Choose(mnuPrint); }

  tests::FakePrinter& printer = services.printer;
};

TEST_F(PrintCode, IsOfferedWithAText) {
  LoadCode({"aa = 1", "bb = 2"});
  toolkit.OnPopup("Print Code");
  Press(1, 1000, forms::vbRightButton);
  ReleaseAt(1, 1000, forms::vbRightButton);
  EXPECT_TRUE(list.Reading().menu[mnuPrint].Enabled());
  EXPECT_THAT(printer.Texts(), ElementsAre("aa = 1", "bb = 2"));
}

TEST_F(PrintCode, IndentsByFourBlanksALevelAndPutsCommentsToTheEdge) {
  LoadCode({"Sub A()", "  If a Then", "b = 1", "   'why  ", "Do", "c = 2", "Loop", "End If", "End Sub"});
  Print();
  EXPECT_THAT(printer.Texts(), ElementsAre("Sub A()", "If a Then", "    b = 1", "'why", "    Do ", "        c = 2",
                                           "    Loop ", "End If", "End Sub"));
}

TEST_F(PrintCode, StandsInTenPointsFourHundredTwipsFromTheEdge) {
  LoadCode({"aa = 1", "bb = 2"});
  Print();
  ASSERT_EQ(printer.documents.size(), 1u) << "one document, ended";
  for (const auto& line : printer.documents[0]) {
    EXPECT_EQ(line.x, 400);
    EXPECT_EQ(line.font_size, 10);
  }
}

TEST_F(PrintCode, RestoresPointerAndFontSize) {
  LoadCode({"aa = 1", "bb = 2"});
  printer.font_size = 8.25f;
  int during = 0;
  printer.on_print = [&] { during = services.screen.MousePointer(); };
  Print();
  EXPECT_EQ(during, host::vbHourglass);
  EXPECT_EQ(services.screen.MousePointer(), host::vbDefault);
  EXPECT_EQ(printer.font_size, 8.25f);
}

TEST_F(PrintCode, TakesOnlySelectedLinesWhereThereAreAny) {
  LoadCode({"aa = 1", "bb = 2", "cc = 3"});
  ClickOn(2, 100);
  ClickOn(3, 100);
  Print();
  EXPECT_THAT(printer.Texts(), ElementsAre("bb = 2", "cc = 3"));
  EXPECT_THAT(SelectedLines(), ElementsAre(2, 3)) << "they stay selected";
}

TEST_F(PrintCode, OfACollapsedTextLeavesOutTheHiddenLines) {
  LoadCode({"Sub A()", "If a Then", "b = 1", "c = 2", "End If", "End Sub"});
  Choose(mnuLogCol);
  Print();
  EXPECT_THAT(printer.Texts(), ElementsAre("Sub A()", "If a Then", "End If", "End Sub"));
}

TEST_F(PrintCode, OfOneLineOrNoneIsNothing) {
  LoadCode({"aa = 1"});
  Print();
  list.Clear();
  Print();
  EXPECT_THAT(printer.documents, IsEmpty());
  EXPECT_THAT(services.screen.pointers, IsEmpty());
}

TEST_F(PrintCode, PassesOverErrorsUntilTheEndOfTheDocument) {
  LoadCode({"aa = 1", "bb = 2", "cc = 3"});
  long printed = 0;
  printer.on_print = [&] { printer.fail_with = ++printed == 2 ? 482 : 0; };
  Print();
  EXPECT_THAT(printer.Texts(), ElementsAre("aa = 1", "cc = 3"));
}

TEST_F(PrintCode, WithoutAPrinterIsSilentAndLeavesNothingChanged) {
  LoadCode({"aa = 1", "bb = 2"});
  printer.fail_with = 482;
  Print();
  EXPECT_THAT(printer.documents, IsEmpty());
  EXPECT_THAT(services.prompts.Texts(), IsEmpty());
  EXPECT_EQ(services.screen.MousePointer(), host::vbDefault);
  EXPECT_EQ(printer.font_size, 12);
}

}  // namespace
}  // namespace corvane::codelist
