// The search of designers: its hits are lines of the code view, and a double click opens the designer.
#include "explorer/frm_add_in.h"
#include "explorer/project_access.h"
#include "explorer/rows.h"
#include "explorer/search_properties.h"
#include "explorer/set_while.h"
#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;
using host::Ref;

namespace {

constexpr char kAsk[] = "Type SubString for Searching in Properties";
constexpr char kNothingFound[] = "Components Properties are not found.";
constexpr long kShortestText = 2;

std::string RowOfHit(const PropertyHit& hit) {
  const std::string value = "/+\\" + hit.property + " = " + hit.value + "/-\\";
  return !hit.ofControl ? "  " + value : "  Component = /+\\/+\\" + hit.control + "/-\\/-\\  " + value;
}

}  // namespace

// Any click ends it; what was found so far stays.
void frmAddIn::SearchProperties() {
  const std::string text = services.Prompts.InputBox(kAsk);
  if (Len(text) < kShortestText) return;
  services.Screen.SetMousePointer(host::vbHourglass);
  TakeSnapshotOfView();
  const long fill = BeginFill();  // what was being filled ends, another search too
  busy = false;
  long hits = 0;
  {
    SetWhile guard(searching);
    PassOverErrors([&] { hits = ListPropertyHits(text, fill); });
  }
  services.Screen.SetMousePointer(host::vbDefault);
  if (fill != fills) return;
  if (hits > 0 && lblSub.Caption() != kSearchResult) return;  // a click on a procedure shows that
  if (hits == 0) {
    services.Prompts.MsgBox(kNothingFound);
    return;
  }
  txtCode.SetStrPos(1);
  Focus(txtCode);
}

// Returns the number of hits. A list that is filled meanwhile ends it as a click does.
long frmAddIn::ListPropertyHits(const std::string& text, long fill) {
  long hits = 0;
  const auto goesOn = [&] { return searching && fill == fills; };
  PropertySearch search(text, goesOn, [this] { DoEvents(); });
  for (const Ref<host::VBComponent>& component : host::Each(ActiveComponents(VBInstance))) {
    DoEvents();
    if (!goesOn()) break;
    PassOverErrors([&] {
      if (!HasCode(Object(component)) || !HasDesigner(component->Type())) return;
      const std::string name = component->Name();
      Label5.SetCaption(name);
      bool first = true;
      search.Search(*component, [&](const PropertyHit& hit) {
        if (hits++ == 0) {
          ResetHistoryButtons();
          BeginPropertyHits();
        }
        if (std::exchange(first, false)) AddHeading(name);
        AddResult(RowOfHit(hit));
      });
    });
  }
  return hits;
}

void frmAddIn::BeginPropertyHits() {
  txtCode.Clear();
  txtCode.SetVisible(true);
  lblSub.SetCaption(kSearchResult);
}

// The name of the designer that the rows below belong to.
void frmAddIn::AddHeading(const std::string& name) {
  if (txtCode.ListCount() > 0) AddResult(" ");
  AddResult(std::string(kModuleName) + "\2" + name);
}

// A row of results is no code.
void frmAddIn::AddResult(const std::string& row) {
  const bool analysed = std::exchange(txtCode.NoAnalyse, true);
  txtCode.AddItem(row);
  txtCode.NoAnalyse = analysed;
}

}  // namespace corvane::explorer
