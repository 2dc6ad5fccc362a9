// The menu of a row of the procedures.
#include <algorithm>

#include "explorer/frm_add_in.h"
#include "explorer/rows.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

constexpr const char* kHeaders[] = {"SUB ", "FUNCTION ", "PROPERTY "};
constexpr long kRowsOfList = 5, kShortestRow = 2;
constexpr int kMenuKey = 93;

// Position of the first of the header words that occurs, in their order; 0 for none.
long HeaderAt(const std::string& upper) {
  for (const char* word : kHeaders)
    if (long at = InStr(upper, word)) return at;
  return 0;
}

}  // namespace

// The platform's lists tell no row under the pointer: it is reckoned from the five rows that the list shows. The press
// chooses none by itself.
void frmAddIn::lbxProc_MouseDown(int button, forms::Twips x, forms::Twips y) {
  if (button != forms::vbRightButton) return;
  long row = static_cast<long>(y * kRowsOfList) / std::max(static_cast<long>(lbxProc->Height()), 1L);
  PassOverErrors([&] { lbxProc->SetListIndex(row + lbxProc->TopIndex()); });
  OpenProcedureMenu(lbxProc->Left() + x, lbxProc->Top() + y);
}

void frmAddIn::OpenProcedureMenu(forms::Twips x, forms::Twips y) {
  const std::string text = UCase(lbxProc->List(lbxProc->ListIndex()));
  if (Len(text) < kShortestRow) return;
  bool header = HeaderAt(text) > 0, labelled = InStr(text, ":") > 0 && !Holds(LabelOf(text), " ");
  mnuSearch.SetVisible(header);
  mnuComnt.SetVisible(header);
  mnuSearchMod.SetVisible(labelled);
  mnuGoDesign.SetVisible(labelled);
  PopupMenu(mnuPLB, x, y);
  mnuSearch.SetVisible(true);
  mnuComnt.SetVisible(true);
}

void frmAddIn::lbxProc_KeyDown(int& key, int shift) {
  if (key != kMenuKey && !(key == forms::vbKeyF10 && shift == forms::vbShiftMask)) return;
  key = 0;
  OpenProcedureMenu(lbxProc->Left(), lbxProc->Top());
}

// The name of the procedure goes into the search box.
void frmAddIn::mnuSearch_Click() {
  std::string row = lbxProc->List(lbxProc->ListIndex());
  long header = HeaderAt(UCase(row));
  if (header == 0) return;
  std::string name = Mid(row, InStr(header, row, " ") + 1);
  cmbSearch.SetText(Trim(name.substr(0, name.find('('))));
}

void frmAddIn::mnuGoDesign_Click() {
  designerFromRow = true;
  cmGo_Click();
}

}  // namespace corvane::explorer
