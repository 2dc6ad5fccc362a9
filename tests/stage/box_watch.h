// BoxWatch: while it lives, a message box that opens is read and closed by its default button, and a menu that pops up
// is ended.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>
#include <windows.h>

namespace corvane::stage {

class BoxWatch {
 public:
  BoxWatch();
  ~BoxWatch();
  BoxWatch(const BoxWatch&) = delete;

  // The texts of the boxes that were closed.
  const std::vector<std::string>& Boxes() const { return boxes_; }
  // The same, which are forgotten then.
  std::vector<std::string> Take() { return std::exchange(boxes_, {}); }
  // The number of the menus.
  long Menus() const { return menus_; }
  // Done once, in place of closing the next box.
  std::function<void(HWND box)> instead;

 private:
  static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD);
  void LookAtBox(HWND box);
  static BoxWatch* current_;
  UINT_PTR timer_;
  std::vector<std::string> boxes_;
  long menus_ = 0;
};

}  // namespace corvane::stage
