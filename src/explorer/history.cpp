// The history of code points: what is recorded of a view, and what the toolbar's keys go back to.
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/rows.h"
#include "explorer/set_while.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

// Makes the view the pending point. A list of search results is no place in code.
void frmAddIn::RecordCurrentPoint() {
  nextPoint = {};
  long row = lbxProc->ListIndex(), codeRow = txtCode.ListIndex();
  if (row < 0 || codeRow < 1 || lblSub.Caption() == kSearchResult) return;
  PassOverErrors([&] {
    std::string text = lbxProc->List(row);
    long index = ComponentInView();
    if (index < 1) return;
    std::string module = Object(ComponentAt(text, index)).Name();
    std::string snippet = SnippetOf(txtCode.List(codeRow), codeRow);
    nextPoint = {PointText(module, snippet, text, index), std::max(lbxProc->ItemData(row), 1L), codeRow};
  });
}

// Position of the component whose code is shown; below 1 when the rows do not tell it.
long frmAddIn::ComponentInView() {
  long index = 0, line = 0;
  if (IsGlobalsText()) {
    ModuleOfTitleAbove(index, line);
    return index;
  }
  index = ComponentInTail(lbxProc->List(lbxProc->ListIndex()));
  return index < 0 && lbxComp->ListIndex() >= 1 ? lbxComp->ItemData(lbxComp->ListIndex()) : index;
}

// Puts the pending point into the history; false where there is none.
bool frmAddIn::PushHistoryPoint() {
  if (navigating || lblSub.Caption().empty() || nextPoint.row < 1 || nextPoint.text.empty()) return false;
  points.Push(nextPoint);
  std::vector<forms::ButtonMenu> entries;
  // A menu takes a single "&" for the mark of its key.
  for (long index = points.Count() - 1; index >= 0; --index)
    entries.push_back({"", Replace(points.Caption(index), "&", "&&")});
  tlbr.SetButtonMenus(tlbr.PositionOf("History"), std::move(entries));
  ShowHistoryStates();
  return true;
}

bool frmAddIn::SavePendingPoint() {
  RecordCurrentPoint();
  return PushHistoryPoint();
}

// Another view follows: what is pending is pushed, and the place is past the newest point.
void frmAddIn::ResetHistoryButtons() {
  if (navigating) return;
  PushHistoryPoint();
  nextPoint = {};
  points.GoPastNewest();
  ShowHistoryStates();
}

void frmAddIn::ForgetHistory() {
  points.Clear();
  nextPoint = {};
  navigating = false;  // a step that is under way ends
  tlbr.SetButtonMenus(tlbr.PositionOf("History"), {});
  ShowHistoryStates();
}

// A toolkit draws the whole bar again for each key that changes.
void frmAddIn::ShowHistoryStates() {
  const struct {
    const char* key;
    bool enabled;
  } kStates[] = {{"Previous", CanStepBack()},
                 {"Next", CanStepOn()},
                 {"First", CanStepBack()},
                 {"Last", CanStepOn()},
                 {"History", HasHistory()}};
  for (const auto& state : kStates) {
    int position = tlbr.PositionOf(state.key);
    if (tlbr.Button(position).Enabled != state.enabled) tlbr.SetButtonEnabled(position, state.enabled);
  }
}

// The view that is left can be returned to: it is the newest point then, and the place.
void frmAddIn::LeaveNewestPlace() {
  if (points.IsPastNewest() && SavePendingPoint()) points.GoTo(points.Count() - 1);
}

void frmAddIn::StepToPrevious() {
  if (busy || navigating) return;
  LeaveNewestPlace();
  if (points.StepBack(lblSub.Caption())) ShowPoint();
}

void frmAddIn::StepToNext() {
  if (busy || navigating) return;
  if (points.StepOn(lblSub.Caption())) ShowPoint();
}

void frmAddIn::StepToFirst() {
  if (busy || navigating) return;
  LeaveNewestPlace();
  if (points.Count() == 0) return;
  points.GoTo(0);
  ShowPoint();
}

void frmAddIn::StepToLast() {
  if (busy || navigating || points.Count() == 0) return;
  points.GoTo(points.Count() - 1);
  ShowPoint();
}

// Of the drop-down, which lists the newest first. Saving the view must not push the chosen point out of the history.
void frmAddIn::StepToChosen(int entry) {
  long index = points.Count() - entry;
  if (busy || navigating || index < 0) return;
  const bool full = points.Count() == CodePoints::kMost;
  if (!full || index > 0) {
    const std::string newest = points.At(points.Count() - 1).text;
    LeaveNewestPlace();
    if (full && points.At(points.Count() - 1).text != newest) --index;
  }
  points.GoTo(index);
  ShowPoint();
}

void frmAddIn::ShowPoint() {
  SetWhile stepping(navigating);
  nextPoint = {};
  ShowHistoryStates();
  DoEvents();
  if (navigating) lbxProc_Click();
}

// Selects the row of the point, which is listed again where it is not listed any more.
void frmAddIn::RestoreHistoryPoint() {
  if (points.Current() && optCurMod.Value()) FillComponentList();
  if (!points.Current()) return;
  const CodePoint point = *points.Current();
  const std::string text = RowOfPoint(point.text);
  SetWhile filling(busy);
  long row = ListedRow(text, point.line);
  if (row < 0) {
    AddRow(text, point.line);
    row = ListedRow(text, point.line);
  }
  if (row >= 0) lbxProc->SetListIndex(row);
}

// The row that begins with [text], else the one that [text] labels with its module; not behind [line]. -1: not listed.
long frmAddIn::ListedRow(const std::string& text, long line) const {
  const std::string plain = Mid(text, InStr(text, kLabelEnd) + Len(kLabelEnd));
  const long component = ComponentInTail(text), chosen = lbxComp->ListIndex();
  const std::string untailed = chosen >= 1 && lbxComp->ItemData(chosen) == component ? ShownText(plain) : std::string();
  long found = -1;
  for (long row = 0; row < lbxProc->ListCount(); ++row) {
    if (lbxProc->ItemData(row) > line) continue;
    const std::string listed = lbxProc->List(row);
    if (BeginsWith(listed, text)) return row;
    const bool same = listed == plain || (!untailed.empty() && Trim(listed) == untailed);
    if (same && found < 0) found = row;
  }
  return found;
}

void frmAddIn::txtCode_CodeLostFocus(long row) {
  if (row < 0) return RecordCurrentPoint();
  if (row == 0 || lblSub.Caption() == kSearchResult) return;  // a row of results is none of the pending point
  nextPoint.row = row;
  PushHistoryPoint();
}

}  // namespace corvane::explorer
