// What the library of an object's types tells about it, where the object has one.
#pragma once

#include "com/com_pointer.h"

namespace corvane::com {

// The id of [event] in the interface [events]; [otherwise] where the library does not know it.
DISPID EventId(IDispatch* source, const IID& events, const wchar_t* event, DISPID otherwise);

// The same object as another interface, which the library names; empty where either does not know it, and where it has
// slots of its own alone.
ComPointer<IDispatch> AsInterface(IDispatch* object, const wchar_t* name);

}  // namespace corvane::com
