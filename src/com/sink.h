// Listen: binds one event of an object, found at run time, to a handler.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "com/com_pointer.h"
#include "com/value.h"
#include "host/base.h"

namespace corvane::com {

// The arguments of an event in their own order. Flags that it takes back are written through Write.
class EventArguments {
 public:
  explicit EventArguments(DISPPARAMS& parameters) : parameters_(parameters) {}
  Value At(UINT position) const;   // Empty where it is not there
  bool Flag(UINT position) const;  // False where it is not there or cannot be read
  void Write(UINT position, bool flag);

 private:
  VARIANT* Find(UINT position) const;
  DISPPARAMS& parameters_;
};

using EventHandler = std::function<void(EventArguments& arguments)>;

// [id] is the event's where the library of the object's types does not tell it. Error 459 for an object without events.
std::unique_ptr<host::Subscription> Listen(IDispatch* source, const wchar_t* event, DISPID id, EventHandler handler);

}  // namespace corvane::com
