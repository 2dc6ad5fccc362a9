#include "environment/code_pane.h"

#include <algorithm>

#include "environment/lookup.h"

namespace corvane::environment {

host::Ref<host::CodePane> PaneList::Item(const host::Index& index) {
  return ItemOf(panes_, index, [](const auto& pane) { return pane->CodeModule()->Name(); });
}

host::Ref<host::CodePane> PaneList::Active() {
  return activity_.empty() ? nullptr : activity_.back().lock();
}

std::shared_ptr<Pane> Pane::Create(PaneList& list, WindowList& windows, PaneOwner& owner) {
  return std::shared_ptr<Pane>(new Pane(list, windows, owner));
}

Pane::~Pane() {
  Detach();
}

void Pane::Detach() {
  if (!owner_) return;
  if (open_) {
    std::erase_if(list_->panes_, [this](const auto& pane) { return pane.get() == this; });
    std::erase_if(list_->activity_, [this](const auto& pane) { return pane.expired() || pane.lock().get() == this; });
  }
  if (window_) windows_->Remove(window_);
  open_ = false;
  owner_ = nullptr;
}

PaneOwner& Pane::Owner() const {
  if (!owner_) throw host::Error(runtime::kObjectNotSet);
  return *owner_;
}

void Pane::OpenOnDemand() {
  Owner();
  if (open_) return;
  open_ = true;
  list_->panes_.push_back(shared_from_this());
  list_->activity_.insert(list_->activity_.begin(), weak_from_this());
  Window();  // every open pane is in the list of windows
}

void Pane::MoveToFront() {
  OpenOnDemand();
  auto& activity = list_->activity_;
  const auto self =
      std::find_if(activity.begin(), activity.end(), [this](const auto& pane) { return pane.lock().get() == this; });
  std::rotate(self, self + 1, activity.end());
}

void Pane::Close() {
  Owner();
  if (!open_) return;
  const auto self = shared_from_this();
  open_ = false;
  std::erase(list_->panes_, self);
  std::erase_if(list_->activity_, [&](const auto& pane) { return pane.lock() == self; });
  owner_->PaneWasClosed();
}

void Pane::Activate() {
  MoveToFront();
}

void Pane::Show() {
  MoveToFront();
  Owner().PaneWasShown();
}

host::Selection Pane::Clipped(host::Selection wanted) {
  const long lines = std::max(1L, Owner().PaneLines());
  const long last_length = owner_->PaneLines() == 0 ? 0 : owner_->PaneLineLength(lines);
  auto clip = [&](long& line, long& column) {
    if (line > lines) {
      line = lines;
      column = last_length + 1;
      return;
    }
    line = std::max(1L, line);
    const long length = line == lines ? last_length : owner_->PaneLineLength(line);
    column = std::clamp(column, 1L, length + 1);
  };
  clip(wanted.start_line, wanted.start_column);
  clip(wanted.end_line, wanted.end_column);
  const bool backward = wanted.end_line < wanted.start_line ||
                        (wanted.end_line == wanted.start_line && wanted.end_column < wanted.start_column);
  if (backward) {
    wanted.end_line = wanted.start_line;
    wanted.end_column = wanted.start_column;
  }
  return wanted;
}

host::Selection Pane::Current() {
  return Clipped(selection_);
}

void Pane::UserSelect(const host::Selection& selection) {
  selection_ = Clipped(selection);
}

void Pane::LinesChanged(long start, long removed, long inserted) {
  auto follow = [&](long& line, long& column) {
    if (line < start) return;
    if (line >= start + removed) {
      line += inserted - removed;
    } else if (line >= start + inserted) {  // its line is gone
      line = start + inserted;
      column = 1;
    }
  };
  follow(selection_.start_line, selection_.start_column);
  follow(selection_.end_line, selection_.end_column);
}

host::Ref<host::CodeModule> Pane::CodeModule() {
  return Owner().PaneModule();
}

host::Ref<host::Window> Pane::Window() {
  Owner();
  if (window_) return window_;
  std::weak_ptr<Pane> weak = shared_from_this();
  auto with = [weak](auto act) {
    if (auto pane = weak.lock()) act(*pane);
  };
  WindowActs acts;
  acts.caption = [weak] {
    auto pane = weak.lock();
    return pane ? pane->Owner().PaneCaption() : std::string();
  };
  acts.is_open = [weak] {
    auto pane = weak.lock();
    return pane && pane->IsOpen();
  };
  acts.focus = [with] { with([](Pane& pane) { pane.Show(); }); };
  acts.close = [with] { with([](Pane& pane) { pane.Close(); }); };
  acts.set_visible = [with](bool visible) { with([visible](Pane& pane) { visible ? pane.Show() : pane.Close(); }); };
  return window_ = windows_->Add(std::move(acts));
}

host::Selection Pane::GetSelection() {
  return Current();
}

void Pane::SetSelection(const host::Selection& selection) {
  selection_ = Clipped(selection);
  owner_->PaneSelectionSet();
}

}  // namespace corvane::environment
