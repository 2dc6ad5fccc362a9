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

// The first shown control whose upper left corner is at this place in the client area of [form], in twips; null for
// none. Also for the controls of a control.
HWND ControlAt(HWND form, int left, int top);

// The rows of a list, or of a combo box, which is opened for it.
std::vector<std::string> RowsOf(HWND list);

struct Modifiers {
  bool shift = false, ctrl = false, alt = false;
};

// Holds keys down for as long as it lives, as far as this thread sees them.
class Held {
 public:
  explicit Held(Modifiers keys);
  ~Held() { SetKeyboardState(before_); }
  Held(const Held&) = delete;

 private:
  BYTE before_[256];
};

// Keys and clicks, put into the queue of this thread. With Alt alone a key is the system's.
void PostKey(HWND window, WORD key, Modifiers with = {});
void PostClick(HWND window, int x, int y);
void PostDoubleClick(HWND window, int x, int y);
// In its middle, to whatever stands there.
void PostClick(HWND window);

}  // namespace corvane::stage
