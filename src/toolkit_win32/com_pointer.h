// ComPointer: a counted reference to a COM object.
#pragma once

#include <utility>

#include "toolkit_win32/win.h"
// Behind it, as it needs it.
#include <unknwn.h>

namespace corvane::toolkit_win32 {

template <class T>
class ComPointer {
 public:
  ComPointer() = default;
  // Adds a reference of its own.
  explicit ComPointer(T* object) : object_(object) {
    if (object_) object_->AddRef();
  }
  ComPointer(const ComPointer& other) : ComPointer(other.object_) {}
  ComPointer(ComPointer&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ~ComPointer() {
    if (object_) object_->Release();
  }
  ComPointer& operator=(ComPointer other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  T* Get() const { return object_; }
  T* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  // Gives the reference to the caller.
  T* Detach() { return std::exchange(object_, nullptr); }

  // For calls that write a reference out; what was held is released first.
  T** Out() {
    *this = ComPointer();
    return &object_;
  }
  void** OutVoid() { return reinterpret_cast<void**>(Out()); }

  // Empty where the object does not offer [U].
  template <class U>
  ComPointer<U> As(const IID& iid = __uuidof(U)) const {
    ComPointer<U> other;
    if (object_ && FAILED(object_->QueryInterface(iid, other.OutVoid()))) other.Detach();
    return other;
  }

 private:
  T* object_ = nullptr;
};

}  // namespace corvane::toolkit_win32
