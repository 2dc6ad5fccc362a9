// The bookmarks: how the caret's line becomes one, and the list that leads back to them.
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/rows.h"
#include "explorer/set_while.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;
using host::Ref;

namespace {

constexpr char kNumber[] = "0#  ";
constexpr char kNumberOfPreviousPoint[] = "00  ";

}  // namespace

// Without an active code pane what was remembered before stays.
void frmAddIn::RememberCaretLine() {
  PassOverErrors([&] {
    Ref<host::CodeModule> module = ActiveModule(VBInstance);
    if (!module) return;
    const long line = Object(module->CodePane()).GetSelection().start_line;
    Label5.SetCaption(module->Lines(line, 1));
    caretModule = module->Name();
    caretLine = line;
  });
}

// Of a line of blanks nothing would be left in the list to tell it by.
void frmAddIn::PutBookmark() {
  if (Trim(Label5.Caption()).empty()) return;
  bookmarks.Put(Label5.Caption(), caretModule, caretLine);
}

void frmAddIn::PutCaretLine() {
  RememberCaretLine();
  PutBookmark();
}

// Lists the place that the latest jump left and the bookmarks, the newest first, as rows that lead back to them. Their
// numbers go on from the rows of the components; the list sorts by them.
void frmAddIn::ShowBookmarks() {
  if (previousPoint.empty() && bookmarks.Count() == 0) return;
  SavePendingPoint();
  long number = lbxComp->ListCount();
  TakeSnapshotOfView();
  BeginFill();
  {
    SetWhile filling(busy);
    hasResults = true;
    goMode = false;
    lbxComp->Clear();
    lbxProc->Clear();
    txtCode.Clear();
    lbxComp->AddItem(kResult);
    lbxComp->SetItemData(lbxComp->NewIndex(), 0);
    if (Len(previousPoint) > 1) AddRow(kNumberOfPreviousPoint + previousPoint, 0);
    for (long index = bookmarks.Count() - 1; index >= 0; --index)
      AddRow(Format(static_cast<double>(++number), kNumber) + LTrim(bookmarks.Row(index)), 0);
    lbxComp->SetListIndex(0);
  }
  ShowProcedures();
  ShowFirstBookmark();
}

// One whose module has gone leaves the code view empty.
void frmAddIn::ShowFirstBookmark() {
  if (lbxProc->ListCount() == 0) return;
  optCurMod.SetValue(false);
  optProj.SetValue(false);
  PassOverErrors([&] { lbxProc->SetListIndex(0); });
  Focus(*lbxProc);
}

// They live as long as the window is loaded.
void frmAddIn::ForgetPlaces() {
  bookmarks.Clear();
  favoriteDesigners.Clear();
  previousPoint.clear();
  caretModule.clear();
  caretLine = 0;
}

}  // namespace corvane::explorer
