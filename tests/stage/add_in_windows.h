// The windows of the add-in as they stand on the screen, and the user's acts on them.
#pragma once

#include <string>
#include <vector>
#include <windows.h>

namespace corvane::stage {

std::string CaptionOf(HWND window);
std::string ClassOf(HWND window);

// The top-level windows of this thread that are shown, those of the environment left out.
std::vector<HWND> ShownWindows(HWND environment);
// The one whose caption begins so, null if none is shown.
HWND FindShown(const std::string& caption);
// The first of this class, among all windows of this thread that are shown.
HWND FindShownOfClass(const std::string& name);
// All below it whose class contains [part] (compared without case), in their order.
std::vector<HWND> Below(HWND window, const std::string& part);

// The shown control whose upper left corner is at this place in the client area of [form], in twips; null for none.
HWND ControlAt(HWND form, int left, int top);

// Keys and clicks, put into the queue of this thread.
void PostKey(HWND window, WORD key);
void PostClick(HWND window, int x, int y);

}  // namespace corvane::stage
