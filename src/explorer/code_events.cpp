// What the code view asks of the window: its double click, its searches, its clipboard.
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/rows.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

constexpr char kWholeProject = 2, kActiveModule = 3;

}  // namespace

// A hit in the properties leads to its designer, code into the code pane.
void frmAddIn::txtCode_DblClick() {
  if (lblSub.Caption() != kSearchResult) {
    goMode = true;
    GoToCode();
    return;
  }
  if (const auto name = NameOfResultAbove()) PassOverErrors([&] { OpenDesigner(*name); });
}

// The first character tells where to search; without one the control has copied the word.
void frmAddIn::txtCode_Search(const std::string& text) {
  const char scope = text.empty() ? '\0' : text.front();
  if (scope != kWholeProject && scope != kActiveModule) return ShowClipBook();
  cmbSearch.SetText(Mid(text, 2));
  searchScope = scope;
  PassOverErrors([&] { cbSearch.Click(); });
  searchScope = 0;
}

void frmAddIn::ShowClipBook() {
  PassOverErrors([&] { txtClip.SetText(services.Clipboard.GetText()); });
}

}  // namespace corvane::explorer
