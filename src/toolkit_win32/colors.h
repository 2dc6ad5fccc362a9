// Colours of the logic as GDI has them.
#pragma once

#include "forms/types.h"
#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

// The system's colours are those in force now.
inline COLORREF ShownColor(forms::Color color) {
  return color & 0x80000000 ? GetSysColor(static_cast<int>(color & 0xFF)) : color & 0x00FFFFFF;
}

// A solid brush of [dc]'s own: nobody has to free it, and it holds until the next call for that [dc].
inline HBRUSH BrushOf(HDC dc, forms::Color color) {
  SetDCBrushColor(dc, ShownColor(color));
  return static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
}

inline void Fill(HDC dc, const RECT& place, forms::Color color) {
  FillRect(dc, &place, BrushOf(dc, color));
}

}  // namespace corvane::toolkit_win32
