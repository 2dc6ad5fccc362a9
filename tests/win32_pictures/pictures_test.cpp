// Every window of the add-in on the Windows API, into PNG files beside those of the desk: in the folder that the
// environment variable CORVANE_PICTURES names, else in the system's folder for temporary files. CORVANE_PROJECT
// names the project, which else is the sample of the source tree.
#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <set>

#include "environment/environment.h"
#include "explorer/frm_about.h"
#include "explorer/frm_add_in.h"
#include "explorer/rows.h"
#include "toolkit_win32/modal.h"
#include "toolkit_win32/screenshot.h"
#include "toolkit_win32/services.h"
#include "toolkit_win32/texts.h"
#include "toolkit_win32/toolkit.h"
#include "workshop/frm_result.h"

namespace corvane::toolkit_win32 {
namespace {

using explorer::frmAddIn;

std::string InTree(const char* name) {
  std::string path = std::string(CORVANE_SOURCE_DIR) + "/" + name;
  std::replace(path.begin(), path.end(), '/', '\\');
  return path;
}

std::string Project() {
  const char* wanted = std::getenv("CORVANE_PROJECT");
  return wanted ? wanted : InTree("samples/stockroom/Stockroom.vbp");
}

std::wstring Folder() {
  if (const char* wanted = std::getenv("CORVANE_PICTURES")) return FromUtf8(wanted) + L"\\";
  wchar_t path[MAX_PATH];
  return {path, GetTempPathW(MAX_PATH, path)};
}

class Pictures : public ::testing::Test {
 protected:
  Pictures() {
    toolkit.OnFault = [this](const std::string& what) { faults.push_back(what); };
    services.App.Path = InTree("data");  // as it would be installed: its files lie beside the library
    environment = environment::Environment::Create(services.Files);
    environment->Open(Project());
  }
  ~Pictures() override { EXPECT_EQ(faults, std::vector<std::string>{}); }

  std::wstring PathOf(const char* name) {
    const int percent = MulDiv(toolkit.Scale().Dpi(), 100, 96);
    return Folder() + L"win32-" + FromUtf8(name) + L"-" + std::to_wstring(percent) + L".png";
  }
  void Keep(HWND window, const char* name) {
    ASSERT_NE(window, nullptr) << name;
    EXPECT_TRUE(SaveWindowPicture(window, PathOf(name))) << name;
    EXPECT_GT(ColorsOf(window), 2u) << name << " is blank";
  }
  void Keep(const forms::Form& form, const char* name) {
    SetCursorPos(0, 0);
    toolkit.DoEvents();
    Keep(toolkit.WindowOf(form), name);
  }
  // Different colours along some lines of a window.
  static size_t ColorsOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    std::set<COLORREF> colors;
    const HDC dc = GetWindowDC(window);
    for (int x = 0; x < WidthOf(place); x += 3) {
      for (int part = 1; part < 8; ++part) colors.insert(GetPixel(dc, x, HeightOf(place) * part / 8));
    }
    ReleaseDC(window, dc);
    return colors.size();
  }

  struct SharpPixels {
    SharpPixels() { SetProcessDPIAware(); }
  } sharp_pixels;
  Win32Toolkit toolkit;
  Win32Services own_services{toolkit};
  host::Services services = own_services;
  std::shared_ptr<environment::Environment> environment;
  std::vector<std::string> faults;
};

// The component with the most procedures, and its procedure with the most code.
void ChooseRows(frmAddIn& form) {
  const auto is_fixed = [](const std::string& row) { return row.starts_with(' '); };
  const auto choose_most = [&](forms::ListControl& list, auto size) {
    long best = -1, most = 0;
    for (long row = 0; row < list.ListCount(); ++row) {
      if (is_fixed(list.List(row))) continue;
      list.UserSelect(row);
      if (size() > most) best = row, most = size();
    }
    ASSERT_GE(best, 0);
    list.UserSelect(best);
  };
  choose_most(*form.lbxComp, [&] { return form.lbxProc->ListCount(); });
  choose_most(*form.lbxProc, [&] { return form.txtCode.ListCount(); });
}

TEST_F(Pictures, Explorer) {
  frmAddIn form(services, toolkit);
  form.VBInstance = environment;
  form.Show();
  toolkit.DoEvents();
  if (!form.optProj.Value()) form.optProj.UserClick();
  ChooseRows(form);
  EXPECT_GT(form.txtCode.ListCount(), 5);
  Keep(form, "explorer");
  form.cmdMore.UserClick();
  Keep(form, "explorer-code");
  form.cmdMore.UserClick();
  for (long row = 0; row < form.lbxComp->ListCount(); ++row) {
    if (form.lbxComp->List(row) == explorer::kProjectGlobals) form.lbxComp->UserSelect(row);
  }
  Keep(form, "explorer-globals");
  form.Unload();
}

TEST_F(Pictures, About) {
  explorer::frmAbout about(services, toolkit);
  about.Show();
  Keep(about, "about");
  about.cmdSysInfo.UserClick();
  Keep(about, "about-read-me");
  about.Unload();
}

TEST_F(Pictures, Comment) {
  workshop::frmResult result(toolkit);
  result.SetCaption("Comments for a Procedure");
  result.lblText.SetCaption("Type comments for a Procedure");
  result.txtRes.SetText(" Reads what people write: \"a3/11\", \"A 3 11\", \"a-3-11\".\r\n False if it is no bin.\r\n");
  result.Show();
  Keep(result, "comment");
  result.Unload();
}

TEST_F(Pictures, MessageBox) {
  bool kept = false;
  const UINT_PTR clock = toolkit.StartClock(100, [&] {
    const HWND box = FindWindowW(L"#32770", nullptr);
    if (!box || !IsWindowVisible(box) || kept) return;
    kept = true;
    Keep(box, "message-box");
    PostMessageW(box, WM_CLOSE, 0, 0);
  });
  services.Prompts.MsgBox("Current project is not available.", host::vbExclamation, "Corvane - 2000");
  toolkit.StopClock(clock);
  EXPECT_TRUE(kept);
}

}  // namespace
}  // namespace corvane::toolkit_win32
