// The favourite designers in the code view: a double click on one opens it.
#include "explorer/favorite_designers.h"

#include "explorer/frm_add_in.h"

namespace corvane::explorer {

namespace {

constexpr char kNoDesigners[] =
    "Use Favorites DropDown menu to add Designer to the list.\r\n"
    "There is an empty Favorite Designers list.";

}  // namespace

void frmAddIn::AddCurrentDesigner() {
  ComponentAction(ComponentAct::AddToFavorites);
}

void frmAddIn::AddFavoriteDesigner(const std::string& name) {
  favoriteDesigners.Add(name);
}

void frmAddIn::ShowFavoriteDesigners() {
  if (favoriteDesigners.Names().empty()) {
    services.Prompts.MsgBox(kNoDesigners);
    return;
  }
  RecordCurrentPoint();
  if (points.Index() + 1 >= points.Count()) PushHistoryPoint();
  BeginPropertyHits();
  for (const std::string& name : favoriteDesigners.Names()) AddHeading(name);
  txtCode.SetStrPos(1);
  Focus(txtCode);
}

}  // namespace corvane::explorer
