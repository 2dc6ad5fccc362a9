// Keys and mouse buttons as Visual Basic numbers them. Key codes are the platform's own virtual keys.
#pragma once

#include "forms/types.h"
#include "toolkit_win32/win.h"

namespace corvane::toolkit_win32 {

// Of the message being handled.
int ShiftNow();
int ShiftOfMouse(WPARAM held);     // of a mouse message's flags, and Alt as it is now
int ButtonOf(UINT mouse_message);  // of a press or release; 0 for others than the three
int ButtonsOf(WPARAM held);        // held down together, from a mouse message's flags
bool IsMousePress(UINT message);   // the second of a double click too
bool IsMouseRelease(UINT message);
bool IsDoubleClick(UINT message);
bool IsKeyMessage(UINT message);

}  // namespace corvane::toolkit_win32
