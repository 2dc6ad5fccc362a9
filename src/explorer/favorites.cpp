// Favourite lines: code lines that carry a mark in the source itself, and so are saved with the project.
#include "explorer/frm_add_in.h"
#include "explorer/search_module.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

constexpr char kMark[] = "''", kSpacedMark[] = "  ''", kContinues[] = " _";
constexpr char kCannotInclude[] = "Can't include this string to the title. Choose another string.";

}  // namespace

// The first mark of the row counts: one that is not its end, as in a text or a comment, makes it no favourite, and
// keeps it from becoming one.
void frmAddIn::ToggleFavorite() {
  const long row = txtCode.ListIndex();
  if (row < 1) return;
  const std::string text = RTrim(txtCode.List(row));
  if (Holds(text, kContinues)) {
    services.Prompts.MsgBox(kCannotInclude);
    return;
  }
  const long mark = InStr(text, kMark);
  if (mark == 0) return ReplaceCodeLine(row, text + kSpacedMark);
  if (mark > Len(text) - Len(kMark)) ReplaceCodeLine(row, RTrim(runtime::Left(text, mark - 1)));
}

// All lines that carry the mark, in the modules that the search's options select.
void frmAddIn::ShowFavorites() {
  cmbSearch.SetText(kProjectTitle);
  optFndAll.SetValue(true);
  cbSearch.Click();
}

}  // namespace corvane::explorer
