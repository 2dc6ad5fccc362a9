// Dispatch: an object of the environment, called late-bound by the names of its members. Each call is one Invoke.
// Failures throw host::Error.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "com/com_pointer.h"
#include "com/value.h"

namespace corvane::com {

class Dispatch {
 public:
  explicit Dispatch(ComPointer<IDispatch> object) : object_(std::move(object)) {}

  IDispatch* Object() const { return object_.Get(); }
  bool Has(const wchar_t* member) { return SUCCEEDED(Find(member).code); }

  // Reads a property, or calls a method that answers. Trailing optional arguments may be left out.
  template <class... Arguments>
  Value Get(const wchar_t* member, const Arguments&... arguments) {
    const Value values[] = {Value(arguments)..., Value()};
    return Invoke(IdOf(member), DISPATCH_METHOD | DISPATCH_PROPERTYGET, values, sizeof...(arguments));
  }
  // The member that a collection answers with when none is named.
  template <class... Arguments>
  Value GetDefault(const Arguments&... arguments) {
    const Value values[] = {Value(arguments)..., Value()};
    return Invoke(DISPID_VALUE, DISPATCH_METHOD | DISPATCH_PROPERTYGET, values, sizeof...(arguments));
  }
  // Calls a method that answers nothing.
  template <class... Arguments>
  void Call(const wchar_t* member, const Arguments&... arguments) {
    const Value values[] = {Value(arguments)..., Value()};
    Invoke(IdOf(member), DISPATCH_METHOD, values, sizeof...(arguments));
  }
  // Reads or calls a member whose name and arguments are known at run time alone. It is looked up each time.
  Value GetNamed(const std::wstring& member, const std::vector<Value>& arguments);
  // Writes a property; [indices] are those of a property with arguments.
  template <class... Indices>
  void Put(const wchar_t* member, const Value& value, const Indices&... indices) {
    const Value values[] = {Value(indices)..., value};
    Write(IdOf(member), values, sizeof...(indices) + 1);
  }

 private:
  struct Found {
    HRESULT code;
    DISPID id;
  };
  Found Find(const wchar_t* member);
  DISPID IdOf(const wchar_t* member);
  Value Invoke(DISPID id, WORD how, const Value* values, size_t count);
  void Write(DISPID id, const Value* values, size_t count);

  ComPointer<IDispatch> object_;
  // Ids do not change while the object lives, so each name is looked up once for it; another object of the same type
  // may have others.
  std::vector<std::pair<std::wstring_view, DISPID>> ids_;
};

}  // namespace corvane::com
