// What the add-in object is called by name for, beside the methods of IDTExtensibility2.
#pragma once

#include "com/session.h"

namespace corvane::com {

// DISPID_UNKNOWN for a name that it has not. Names compare without case.
DISPID FindMember(const wchar_t* name);

// [session]: null while the add-in is not connected. There is nothing to show then, and nothing to set: properties
// answer False and Nothing, methods do nothing, and setting a property is Error 91. Throws host::Error.
HRESULT InvokeMember(Session* session, DISPID id, WORD how, const DISPPARAMS& parameters, VARIANT* result);

}  // namespace corvane::com
