// "Print Code": the text, or what is selected of it, on the default printer, as it is folded.
#include "codelist/formatter.h"
#include "codelist/hourglass.h"
#include "codelist/reading_commands.h"
#include "codelist/uc_list_box.h"

namespace corvane::codelist {

namespace {

constexpr float kPrintedSize = 10;   // points
constexpr float kPrintedLeft = 400;  // twips

}  // namespace

bool ReadingCommands::IsAnySelected() const {
  for (long line = 1; line <= list.store.Count(); ++line)
    if (list.store.IsSelected(line)) return true;
  return false;
}

// A line that cannot be printed does not keep the document from its end.
void ReadingCommands::PrintLines() {
  host::Printer& printer = list.services.Printer;
  const bool selected_only = IsAnySelected();
  for (long line = 1; line <= list.store.Count(); ++line) {
    if (!list.store.IsVisible(line) || (selected_only && !list.store.IsSelected(line))) continue;
    runtime::PassOverErrors([&] {
      printer.SetCurrentX(kPrintedLeft);
      printer.Print(Printed(list.store.Text(line), list.store.LineLevel(line)));
    });
  }
  runtime::PassOverErrors([&] { printer.EndDoc(); });
}

void ReadingCommands::PrintCode() {
  if (list.store.Count() < 2) return;
  host::Printer& printer = list.services.Printer;
  const Hourglass pointer(list.services.Screen);
  const float size_before = printer.FontSize();
  printer.SetFontSize(kPrintedSize);
  PrintLines();
  printer.SetFontSize(size_before);
}

}  // namespace corvane::codelist
