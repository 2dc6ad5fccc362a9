// A failed call of COM as Visual Basic's Err object tells it, and the way back.
#pragma once

#include "com/com_api.h"
#include "host/base.h"

namespace corvane::com {

// What Visual Basic makes of [code]; the texts and numbers in [told], which may be null, go before.
host::Error ErrorOf(HRESULT code, const EXCEPINFO* told = nullptr);
// Throws it where [code] is a failure.
void Check(HRESULT code);
// Errors of Visual Basic have a facility of their own; a number beyond 16 bits is a code already.
HRESULT CodeOf(const host::Error& error);
// The same for a caller by name, who is told the description too; without [told], which may be null, the code alone.
HRESULT Raise(const host::Error& error, EXCEPINFO* told);

}  // namespace corvane::com
