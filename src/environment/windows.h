// WindowList: the windows of the environment: the Immediate window, code windows, designer windows. Its main window
// stands apart.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/vbe.h"

namespace corvane::environment {

// What a window does. Functions may be left empty.
struct WindowActs {
  std::function<std::string()> caption;
  std::function<bool()> is_open;  // left empty: always
  std::function<void()> focus;
  std::function<void()> close;
  std::function<void(bool)> set_visible;
};

// A window made of its acts. After Detach() its members are Error 91.
class ActWindow : public host::Window {
 public:
  explicit ActWindow(WindowActs acts) : acts_(std::move(acts)) {}
  void Detach() { detached_ = true, acts_ = {}; }
  bool IsOpen();
  std::string Caption() override;
  void SetFocus() override;
  void Close() override;
  void SetVisible(bool visible) override;

 private:
  void Check() const;
  WindowActs acts_;
  bool detached_ = false;
};

// The open windows, in the order in which they were added. By name: the caption, compared without case.
class WindowList : public host::Windows {
 public:
  std::shared_ptr<ActWindow> Add(WindowActs acts);
  void Remove(const std::shared_ptr<ActWindow>& window);  // and detaches it
  long Count() override;
  host::Ref<host::Window> Item(const host::Index& index) override;

 private:
  std::vector<std::shared_ptr<ActWindow>> Open();
  std::vector<std::shared_ptr<ActWindow>> windows_;
};

// The Immediate window: open from the start; SetFocus and SetVisible(true) open it again after Close.
// It stays an item of Windows all the time. [changed] is told whether it was shown (and focused) or closed.
std::shared_ptr<ActWindow> AddImmediateWindow(WindowList& windows, const std::function<void(bool shown)>& changed);

}  // namespace corvane::environment
