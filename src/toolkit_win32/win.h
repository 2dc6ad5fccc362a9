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
// The first is needed by the others.
// clang-format off
#include <windows.h>
#include <commctrl.h>
#include <windowsx.h>
// clang-format on
#undef RGB
