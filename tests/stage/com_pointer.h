// ComPointer: a counted reference to a COM object.
#pragma once

#include <unknwn.h>
#include <utility>

namespace corvane::stage {

template <class T>
class ComPointer {
 public:
  ComPointer() = default;
  // Takes over the reference that the caller has.
  explicit ComPointer(T* owned) : object_(owned) {}
  ComPointer(const ComPointer& other) : object_(other.object_) {
    if (object_) object_->AddRef();
  }
  ComPointer(ComPointer&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ~ComPointer() { Reset(); }
  ComPointer& operator=(ComPointer other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  static ComPointer Shared(T* object) {
    if (object) object->AddRef();
    return ComPointer(object);
  }
  void Reset() {
    if (T* object = std::exchange(object_, nullptr)) object->Release();
  }

  T* Get() const { return object_; }
  T* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }
  // For functions that give a reference out.
  T** Out() {
    Reset();
    return &object_;
  }
  void** OutVoid() { return reinterpret_cast<void**>(Out()); }
  T* Detach() { return std::exchange(object_, nullptr); }

 private:
  T* object_ = nullptr;
};

}  // namespace corvane::stage
