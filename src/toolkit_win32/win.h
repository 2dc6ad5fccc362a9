// The Windows API as this room uses it: Unicode, and without the macro that stands in the way of forms::RGB.
#pragma once

#ifndef UNICODE
#define UNICODE
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <commctrl.h>
#include <windows.h>
#include <windowsx.h>
#undef RGB
