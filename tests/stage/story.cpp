#include "tests/stage/story.h"

#include <algorithm>
#include <commctrl.h>
#include <windows.h>

#include "tests/stage/texts.h"
#include "tests/support/sources.h"

namespace corvane::stage {

namespace {

constexpr wchar_t kSettings[] = L"Software\\VB and VBA Program Settings\\Corvane\\Settings";
constexpr DWORD kLongestFarewell = 1000;  // milliseconds
constexpr wchar_t kDisplayOnConnect[] = L"DisplayOnConnect";

// The library is installed once for all stories. What an earlier run left in the list tells nothing of it.
InstalledLibrary& Library() {
  static InstalledLibrary& library = *[] {
    if (const auto listed = FindListed(kButton)) RemoveFromList(*listed);
    auto* installed = new InstalledLibrary(L"plain");
    EXPECT_EQ(installed->Register(), S_OK);
    return installed;
  }();
  return library;
}

}  // namespace

std::string Setting() {
  wchar_t value[64] = {};
  DWORD size = sizeof(value);
  if (RegGetValueW(HKEY_CURRENT_USER, kSettings, kDisplayOnConnect, RRF_RT_REG_SZ, nullptr, value, &size) != 0)
    return {};
  return Ansi(value);
}

void SetSetting(const std::string& value) {
  const std::wstring wide = Wide(value);
  RegSetKeyValueW(HKEY_CURRENT_USER, kSettings, kDisplayOnConnect, REG_SZ, wide.c_str(),
                  static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t)));
}

void ForgetSetting() {
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings\\Corvane");
}

Story::Story() {
  Library();
  ForgetSetting();
  ReadSample(files, "stockroom");
  environment->Open("C:\\Projects\\stockroom\\Stockroom.vbp");
}

void Story::OpenSmallProject() {
  using namespace tests;
  const Code code = {"Private count As Long", "", "Public Sub Start()", "  count = 1", "End Sub"};
  environment->OpenFromModules("Small", {Bas("modMain", code), Frm("frmMain", code)});
}

void Story::RegisterUsualLibrary() {
  EXPECT_EQ(Library().Register(), S_OK);
}

void Story::PressTool(int position) const {
  RECT place{};
  ASSERT_TRUE(
      SendMessageW(Toolbar(), TB_GETITEMRECT, static_cast<WPARAM>(position - 1), reinterpret_cast<LPARAM>(&place)));
  PostClick(Toolbar(), (place.left + place.right) / 2, (place.top + place.bottom) / 2);
}

void Story::TearDown() {
  ExpectNothingLeft();
}

// A disconnection from inside a handler of the add-in is not over before that handler is.
void Story::ExpectNothingLeft() {
  host.Release();
  window.PumpUntil([&] { return stage.ledger.objects == 0; }, kLongestFarewell);
  window.Settle();
  EXPECT_EQ(stage.ledger.sinks, 0);
  EXPECT_EQ(stage.ledger.Left(), "");
  EXPECT_EQ(stage.ledger.references, 0);
  EXPECT_EQ(stage.ledger.dropped_sinks, 0);
  EXPECT_EQ(stage.ledger.sink_failures, 0);
  EXPECT_EQ(stage.ledger.alien_calls, 0);
  EXPECT_EQ(stage.ledger.faults, std::vector<std::string>());
  EXPECT_EQ(ShownWindows(window.Handle()).size(), 0u);
  EXPECT_TRUE(IsWindowEnabled(window.Handle()));
}

const environment::BarControl* Story::FindOnBar(const std::string& bar, const std::string& caption) const {
  const environment::Bar* found = environment->Bars().Find(bar);
  if (found == nullptr) return nullptr;
  for (const environment::BarControl& control : found->controls)
    if (control.caption == caption) return &control;
  return nullptr;
}

bool Story::Click(const std::string& bar, const std::string& caption) {
  const environment::BarControl* control = FindOnBar(bar, caption);
  const bool heard = control != nullptr && environment->Bars().Click(control->id);
  window.Settle();
  return heard;
}

std::vector<std::string> Story::Captions(const std::string& bar) const {
  std::vector<std::string> captions;
  if (const environment::Bar* found = environment->Bars().Find(bar))
    for (const environment::BarControl& control : found->controls) captions.push_back(control.caption);
  return captions;
}

void Story::Press(HWND control, std::initializer_list<WORD> keys) {
  SetFocus(control);
  for (WORD key : keys) Key(key);
}

void Story::Key(WORD key, Modifiers with) {
  const Held held(with);
  PostKey(GetFocus(), key, with);
  window.Settle();
}

}  // namespace corvane::stage
