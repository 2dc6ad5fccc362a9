// The snapshots of the lists: the keys beside the procedures go back to what was listed before, and forward again.
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/rows.h"
#include "explorer/set_while.h"

namespace corvane::explorer {

// Copies what is listed for the component row that was noted; false where that is nothing to return to. A view that is
// the newest copy already is not copied again.
bool frmAddIn::TakeSnapshot() {
  const bool ofCode = lblSub.Caption() == kSearchResult;
  if (currentText.empty() || currentText == kProjectGlobals) return false;
  if ((ofCode ? txtCode.ListCount() : lbxProc->ListCount()) == 0) return false;
  const bool anew = std::exchange(hasResults, false) || ofCode;
  if (snapshots.Begin({currentText, currentItemData, lbxProc->ListIndex(), ofCode}, anew)) {
    if (ofCode)
      for (long row = 1; row <= txtCode.ListCount(); ++row) snapshots.Add(txtCode.StoredText(row), 0);
    else
      for (long row = 0; row < lbxProc->ListCount(); ++row) snapshots.Add(lbxProc->List(row), lbxProc->ItemData(row));
    snapshots.End();
  }
  cmdNext.SetEnabled(false);
  cmdPrev.SetEnabled(true);
  return true;
}

bool frmAddIn::TakeSnapshotOfView() {
  return RememberComponentRow() && TakeSnapshot();
}

void frmAddIn::cmdPrev_Click() {
  if (busy) return;
  if (snapshots.snapPos == snapshots.Count() && !cmdNext.Enabled()) SaveNewestList();
  const long position = snapshots.snapPos;
  if (position < 1) return;
  const SnapshotHeader header = snapshots.Header(position);
  ResetHistoryButtons();
  const long fill = BeginFill();
  {
    SetWhile filling(busy);
    if (header.ofCode)
      RestoreCode(position);
    else
      RestoreList(position, header);
    --snapshots.snapPos;
    if (snapshots.snapPos < 1) cmdPrev.SetEnabled(false);
    cmdNext.SetEnabled(true);
  }
  DoEvents();
  if (fill != fills) return;
  if (!header.ofCode) return lbxProc_Click();
  txtCode.SetStrPos(1);
  Focus(txtCode);
}

// What is listed now is not copied yet: so that one can come back to it. The project itself is listed again instead.
void frmAddIn::SaveNewestList() {
  if (TakeSnapshotOfView())
    snapshots.snapPos = std::max(snapshots.snapPos - 1, 1L);
  else
    snapshots.snapNextRow = lbxProc->ListIndex() + 1;
}

void frmAddIn::RestoreList(long position, const SnapshotHeader& header) {
  LeaveCurrentCode();
  SelectComponentRow(header);
  RememberComponentRow();
  lbxProc->Clear();
  txtCode.Clear();
  for (long row = snapshots.FirstRow(position); row < snapshots.RowsEnd(position); ++row)
    AddRow(lstSave.List(row), lstSave.ItemData(row));
  if (header.listIndex < lbxProc->ListCount()) lbxProc->SetListIndex(header.listIndex);
}

// The row of the components that the copy belongs to is there again.
void frmAddIn::SelectComponentRow(const SnapshotHeader& header) {
  const long data = header.itemData > 0 || header.component == kResult
                        ? header.itemData
                        : FindComponentIndex(VBInstance, header.component);
  long listed = -1;
  for (long row = 0; row < lbxComp->ListCount(); ++row)
    if (lbxComp->List(row) == header.component && lbxComp->ItemData(row) == data) listed = row;
  if (listed < 0) {
    lbxComp->Clear();
    if (header.component != kResult) lbxComp->AddItem(kProjectGlobals);
    lbxComp->AddItem(header.component);
    listed = lbxComp->NewIndex();
    lbxComp->SetItemData(listed, data);
  }
  lbxComp->SetListIndex(listed);
}

void frmAddIn::LeaveCurrentCode() {
  if (!optCurMod.Value()) return;
  SetWhile noEvent(noOptionEvent);
  optProj.SetValue(true);
}

void frmAddIn::RestoreCode(long position) {
  txtCode.Clear();
  txtCode.SetVisible(true);
  lblSub.SetCaption(kSearchResult);
  const bool analysed = std::exchange(txtCode.NoAnalyse, true);
  for (long row = snapshots.FirstRow(position); row < snapshots.RowsEnd(position); ++row)
    txtCode.AddItem(lstSave.List(row));
  txtCode.NoAnalyse = analysed;
}

void frmAddIn::cmdNext_Click() {
  if (busy) return;
  snapshots.snapPos += 2;
  if (snapshots.snapPos <= snapshots.Count()) {
    cmdPrev.SetEnabled(true);
    return cmdPrev_Click();
  }
  snapshots.snapPos = snapshots.Count();
  FillComponentList();
  const long row = std::exchange(snapshots.snapNextRow, 0) - 1;
  if (row > 0 && row < lbxProc->ListCount()) lbxProc->SetListIndex(row);
  cmdPrev.SetEnabled(snapshots.Count() > 0);
  cmdNext.SetEnabled(false);
}

}  // namespace corvane::explorer
