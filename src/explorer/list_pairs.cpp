// The two pairs of lists, one on top of the other: each keeps what was listed in it last.
#include "explorer/frm_add_in.h"
#include "explorer/rows.h"
#include "explorer/set_while.h"

namespace corvane::explorer {

void frmAddIn::SwitchPair(int to) {
  if (to == pair) return;
  pairProj[pair] = optProj.Value();
  pairCurMod[pair] = optCurMod.Value();
  pairLine[pair] = txtCode.ListIndex();
  // The second pair goes on with the component that is in view.
  pendingComponent = to == 1 ? lbxComp->List(optCurMod.Value() ? 0 : lbxComp->ListIndex()) : std::string();
  ShowPair(to);
  txtCode.Clear();
  lblSub.SetCaption("");
  {
    SetWhile noEvent(noPairEvent);
    optProj.SetValue(pairProj[to]);
    optCurMod.SetValue(pairCurMod[to]);
  }
  DoEvents();
  lbxProc_Click();
  if (pairLine[to] > 1) txtCode.SetStrPos(pairLine[to]);
}

// What was being filled is given up: it belongs to the pair that is left.
void frmAddIn::ShowPair(int to) {
  ++fills;
  busy = false;
  pair = to;
  lbxComp->SetVisible(false);
  lbxProc->SetVisible(false);
  lbxComp = to == 0 ? &lbxComp1 : &lbxComp2;
  lbxProc = to == 0 ? &lbxProc1 : &lbxProc2;
  lbxComp->SetVisible(true);
  lbxProc->SetVisible(true);
  chosenRow = lbxComp->ListIndex();
}

}  // namespace corvane::explorer
