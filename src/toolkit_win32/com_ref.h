// ComRef: one reference on a COM object, given back at the end.
#pragma once

#include <utility>

namespace corvane::toolkit_win32 {

template <class Interface>
class ComRef {
 public:
  ComRef() = default;
  ~ComRef() { Reset(); }
  ComRef(ComRef&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComRef& operator=(ComRef&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  Interface* operator->() const { return object_; }
  Interface* Get() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  // For calls that return an object.
  Interface** Out() {
    Reset();
    return &object_;
  }
  void Reset() {
    if (object_) std::exchange(object_, nullptr)->Release();
  }

 private:
  Interface* object_ = nullptr;
};

}  // namespace corvane::toolkit_win32
