// A window on the Windows API, and what a user does to it.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "forms/controls.h"
#include "tests/toolkit_win32/hand.h"
#include "toolkit_win32/toolkit.h"

namespace corvane::toolkit_win32 {

class WindowTest : public ::testing::Test {
 protected:
  explicit WindowTest(int dpi = 0) : toolkit(nullptr, dpi) {
    toolkit.OnFault = [this](const std::string& what) { faults.push_back(what); };
    form.Move(300, 300, 6000, 4500);
  }
  ~WindowTest() override {
    form.Unload();
    Pump();
  }

  void Show() {
    form.Show();
    Pump();
  }
  HWND WindowOf(const forms::Control& control) { return toolkit.WindowOf(control); }
  HWND WindowOf(const forms::Form& shown) { return toolkit.WindowOf(shown); }
  POINT Middle(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return {client.right / 2, client.bottom / 2};
  }
  void Click(const forms::Control& control) { PostClick(WindowOf(control), Middle(WindowOf(control))); }

  std::vector<std::string> faults;
  std::vector<std::string> told;  // what handlers noted
  Win32Toolkit toolkit;
  forms::Form form{toolkit, "frmTest"};
};

}  // namespace corvane::toolkit_win32
