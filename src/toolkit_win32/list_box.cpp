#include "forms/lists.h"
#include "toolkit_win32/list_view.h"
#include "toolkit_win32/peer.h"
#include "toolkit_win32/peers.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {
namespace {

class ListBoxPeer : public ControlPeer {
 public:
  ListBoxPeer(Win32Toolkit& toolkit, forms::ListBox& list)
      : ControlPeer(toolkit, list), list_(list), view_(toolkit, list, window_) {
    Create(ListView::kKind, Mouse::ReleasesLast);
    view_.IsMarked = [this](long row) { return list_.Rows().At(row).selected; };
    view_.OnChoose = [this](long row) { Report([this, row] { list_.UserSelect(row); }); };
    view_.OnToggle = [this](long row) { Report([this, row] { list_.UserToggle(row); }); };
    view_.OnExtend = [this](long from, long to) { Report([this, from, to] { Extend(from, to); }); };
    view_.OnScroll = [this](long top_row) { Report([this, top_row] { list_.UserScroll(top_row); }); };
  }

 protected:
  void ShowOwn(forms::Property property) override {
    using forms::Property;
    const auto is = [&](auto... any) { return property == Property::All || ((property == any) || ...); };
    if (is(Property::Style, Property::MultiSelect)) {
      view_.Boxes = list_.Style() == 1;
      view_.ToggleOnClick = list_.MultiSelect() == 1;
      view_.Extends = list_.MultiSelect() == 2;
      view_.RowsChanged(LifeOfThis());
    }
    if (is(Property::List)) view_.RowsChanged(LifeOfThis());
    if (is(Property::TopIndex) && !keeping_) view_.ScrollTo(list_.TopIndex());
    if (is(Property::ListIndex)) view_.Follow(list_.ListIndex());
    if (property != Property::List) view_.Repaint();
    if (is(Property::TopIndex, Property::ListIndex)) KeepTopIndex();
  }

  LRESULT OnOwnMessage(Window&, const Message& message) override { return view_.OnMessage(message); }

 private:
  // What is shown on top is known here alone: a TopIndex on the last page and a row that was scrolled into view. Rows
  // with boxes are higher than the control reckons: what is shown stays.
  void KeepTopIndex() {
    if (keeping_ || view_.TopRow() == list_.TopIndex()) return;
    keeping_ = true;
    list_.SetTopIndex(view_.TopRow());
    keeping_ = false;
  }
  void Extend(long from, long to) {
    const int step = from < to ? 1 : -1;
    for (long row = std::max(0L, from); row != to + step; row += step) {
      if (!list_.Selected(row)) list_.UserToggle(row);
    }
  }

  forms::ListBox& list_;
  ListView view_;
  bool keeping_ = false;
};

}  // namespace

NewPeer NewListBoxPeer(Win32Toolkit& toolkit, forms::ListBox& list) {
  return std::make_unique<ListBoxPeer>(toolkit, list);
}

}  // namespace corvane::toolkit_win32
