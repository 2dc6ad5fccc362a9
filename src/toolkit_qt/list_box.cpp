#include "forms/lists.h"
#include "toolkit_qt/list_view.h"
#include "toolkit_qt/peer.h"
#include "toolkit_qt/peers.h"

namespace corvane::toolkit_qt {
namespace {

class ListBoxPeer : public ControlPeer {
 public:
  ListBoxPeer(QtToolkit& toolkit, forms::ListBox& list)
      : ControlPeer(toolkit, list), list_(list), view_(new ListView(list, InsideOf(list.ContainerOf()))) {
    SetWidget(view_, Input::Mouse::ReleasesLast);
    view_->IsMarked = [this](long row) { return list_.Rows().At(row).selected; };
    view_->OnChoose = [this](long row) { Report([this, row] { list_.UserSelect(row); }); };
    view_->OnToggle = [this](long row) { Report([this, row] { list_.UserToggle(row); }); };
    view_->OnExtend = [this](long row) { Report([this, row] { list_.UserExtend(row); }); };
    view_->OnScroll = [this](long top_row) { Report([this, top_row] { list_.UserScroll(top_row); }); };
  }
  ~ListBoxPeer() override {
    if (Widget()) view_->Leave();
  }

 protected:
  void ShowOwn(forms::Property property) override {
    using forms::Property;
    const auto is = [&](auto... any) { return property == Property::All || ((property == any) || ...); };
    if (is(Property::Style, Property::MultiSelect)) {
      view_->Boxes = list_.Style() == 1;
      view_->ToggleOnClick = list_.MultiSelect() == 1;
      view_->Extends = list_.MultiSelect() == 2;
      view_->RowsChanged();
    }
    if (is(Property::List)) view_->RowsChanged();
    if (is(Property::TopIndex)) view_->ScrollTo(list_.TopIndex());
    if (is(Property::ListIndex)) view_->Follow(list_.ListIndex());
    if (property != Property::List) view_->update();
    // A TopIndex on the last page, or a row that was scrolled into view; rows with boxes are higher than others.
    if (is(Property::TopIndex, Property::ListIndex)) list_.NoteTopIndex(view_->TopRow());
  }

 private:
  forms::ListBox& list_;
  ListView* view_;
};

}  // namespace

NewPeer NewListBoxPeer(QtToolkit& toolkit, forms::ListBox& list) {
  return std::make_unique<ListBoxPeer>(toolkit, list);
}

}  // namespace corvane::toolkit_qt
