// Call: one late-bound call of the add-in: its arguments by position (from 0, as Visual Basic writes them), what is
// written back to them, and its result.
#pragma once

#include <memory>
#include <oaidl.h>
#include <string>
#include <type_traits>
#include <windows.h>

#include "host/vbe.h"
#include "tests/stage/tables.h"

namespace corvane::stage {

class Stage;

// The arguments do not fit the member; becomes the code of the call.
struct BadArguments {
  HRESULT code;
  long position;  // of the argument, from 0
};

class Call {
 public:
  Call(Stage& stage, std::shared_ptr<void> target, DISPPARAMS& parameters);
  Call(const Call&) = delete;
  ~Call() { VariantClear(&result_); }

  Stage& stage;
  template <class T>
  T& Target() const {
    return *static_cast<T*>(target_.get());
  }
  template <class T>
  std::shared_ptr<T> Shared() const {
    return std::static_pointer_cast<T>(target_);
  }

  // Arguments. The value of a put is the last one.
  long Count() const { return static_cast<long>(parameters_.cArgs); }
  bool Has(long position) const;  // given, and not left out between others
  std::string Text(long position);
  long Number(long position);
  double Real(long position);
  bool Flag(long position);
  host::Index Place(long position);
  runtime::Variant Value(long position);
  // The object that the stage published; Nothing for Nothing.
  std::shared_ptr<void> Object(long position, const ObjectTable& table);
  void WriteBack(long position, long value);

  // Result.
  void Return(const std::string& text);
  void Return(long number);
  void Return(short number);
  void Return(bool flag);
  void Return(const runtime::Variant& value);
  template <class T>
  void Return(const host::Ref<T>& object) {
    if constexpr (std::is_same_v<T, const runtime::Picture>)
      ReturnPicture(object);
    else
      ReturnPublished(object, TableOf<T>());
  }
  template <class E>
  requires std::is_enum_v<E>
  void Return(E value) { Return(static_cast<long>(value)); }
  void ReturnObject(IUnknown* owned, VARTYPE type);
  void MoveResultTo(VARIANT* result);

 private:
  VARIANT& At(long position) const;  // throws BadArguments where it is left out
  VARIANT As(long position, VARTYPE type);
  void ReturnPublished(const std::shared_ptr<void>& object, const ObjectTable& table);
  void ReturnPicture(const runtime::PictureRef& picture);
  void ReturnKnown(const std::shared_ptr<runtime::Object>& object);

  std::shared_ptr<void> target_;
  DISPPARAMS& parameters_;
  VARIANT result_;
};

}  // namespace corvane::stage
