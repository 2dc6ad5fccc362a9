// The Windows API and its COM, without the macro that stands in the way of a name of forms/.
#pragma once

#include <windows.h>
// Behind it, as they need it.
#include <ocidl.h>
#include <ole2.h>
#include <oleauto.h>
#include <olectl.h>

#undef RGB
