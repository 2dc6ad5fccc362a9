#include "environment/windows.h"

#include <algorithm>

#include "environment/lookup.h"

namespace corvane::environment {

void ActWindow::Check() const {
  if (detached_) throw host::Error(runtime::kObjectNotSet);
}

bool ActWindow::IsOpen() {
  return !detached_ && (!acts_.is_open || acts_.is_open());
}

// Each act is copied before it runs: closing a window may detach it.
std::string ActWindow::Caption() {
  Check();
  const auto caption = acts_.caption;
  return caption ? caption() : std::string();
}

void ActWindow::SetFocus() {
  Check();
  if (const auto focus = acts_.focus) focus();
}

void ActWindow::Close() {
  Check();
  if (const auto close = acts_.close) close();
}

void ActWindow::SetVisible(bool visible) {
  Check();
  if (const auto set_visible = acts_.set_visible) set_visible(visible);
}

std::shared_ptr<ActWindow> WindowList::Add(WindowActs acts) {
  return windows_.emplace_back(std::make_shared<ActWindow>(std::move(acts)));
}

void WindowList::Remove(const std::shared_ptr<ActWindow>& window) {
  if (!window) return;
  const auto at = std::find(windows_.begin(), windows_.end(), window);
  if (at == windows_.end()) return window->Detach();
  const auto kept = std::move(*at);  // [window] may be this very reference
  windows_.erase(at);
  kept->Detach();
}

std::vector<std::shared_ptr<ActWindow>> WindowList::Open() {
  std::vector<std::shared_ptr<ActWindow>> open;
  std::copy_if(windows_.begin(), windows_.end(), std::back_inserter(open),
               [](const auto& window) { return window->IsOpen(); });
  return open;
}

long WindowList::Count() {
  return static_cast<long>(Open().size());
}

host::Ref<host::Window> WindowList::Item(const host::Index& index) {
  return ItemOf(Open(), index, [](const auto& window) { return window->Caption(); });
}

std::shared_ptr<ActWindow> AddImmediateWindow(WindowList& windows, const std::function<void(bool shown)>& changed) {
  auto show = [changed](bool shown) {
    if (changed) changed(shown);
  };
  WindowActs acts;
  acts.caption = [] { return std::string("Immediate"); };
  acts.focus = [show] { show(true); };
  acts.close = [show] { show(false); };
  acts.set_visible = show;
  return windows.Add(std::move(acts));
}

}  // namespace corvane::environment
