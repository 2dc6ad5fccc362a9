// Event: the one handler of a control's event, as Visual Basic has one procedure for each.
#pragma once

#include <functional>
#include <utility>

namespace corvane::forms {

// `cmdMore.Click = [this] { cmdMore_Click(); };`. Raising an event that has no handler does nothing.
template <class... Args>
class Event {
 public:
  template <class Handler>
  Event& operator=(Handler&& handler) {
    handler_ = std::forward<Handler>(handler);
    return *this;
  }
  // A copy runs, so a handler may replace itself or destroy the control.
  void operator()(Args... args) const {
    if (auto handler = handler_) handler(args...);
  }
  explicit operator bool() const { return static_cast<bool>(handler_); }

 private:
  std::function<void(Args...)> handler_;
};

}  // namespace corvane::forms
