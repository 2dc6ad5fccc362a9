// Any bytes as lines of source, and as texts of a list in every mode.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "codelist/uc_list_box.h"
#include "forms/headless_toolkit.h"
#include "runtime/strings.h"
#include "tests/support/fake_services.h"

namespace {

using namespace corvane;
using namespace corvane::codelist;

void Require(bool holds) {
  if (!holds) std::abort();
}

// Marks are put in; nothing of the line is lost.
void AnalyseLines(Language language, std::string_view text) {
  AnalysisState state;
  LineBuffer buffer;
  while (!text.empty()) {
    const size_t end = std::min(text.find('\n'), text.size());
    const std::string line(text.substr(0, end));
    text.remove_prefix(std::min(text.size(), end + 1));
    const std::string_view marked = AnalyseLine(language, state, line, buffer);
    Require(marked.size() >= line.size());
    CleanText(marked);
    EndsProcedure(line);
  }
}

struct Window : forms::Form {
  Window(forms::Toolkit& toolkit, host::Services& services) : Form(toolkit, "Window"), list(*this, "list", services) {
    list.Move(0, 0, 4000, 2340);
  }
  ucListBox list;
};

void LoadList(const std::string& mode, const std::string& text) {
  static tests::FakeServices services;
  static forms::HeadlessToolkit toolkit;
  static Window window(toolkit, services);
  window.Show();
  ucListBox& list = window.list;
  list.sGrid(mode);
  list.ListRole = kSourcePane;
  list.SetText(text);
  Require(list.ListCount() >= 0 && list.Text().size() >= static_cast<size_t>(list.ListCount()));
  for (int key : {forms::vbKeyDown, forms::vbKeyEnd, forms::vbKeyUp, forms::vbKeyPageDown, forms::vbKeyPageUp})
    list.pic.UserKeyDown(key, forms::vbShiftMask);
  list.ReplaceItem(list.ListIndex(), text.substr(0, text.find('\r')));
  list.hs.SetValue(3);
  list.pic.UserMouseDown(forms::vbLeftButton, 0, 1200, 500);
  list.pic.UserMouseUp(forms::vbLeftButton, 0, 1200, 500);
  Require(list.ListIndex() >= 0 && list.ListIndex() <= list.ListCount());
  Require(toolkit.Faults().empty());
  list.Clear();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  AnalyseLines(Language::Vb, text);
  AnalyseLines(Language::Sql, text);
  for (const char* mode : {"VB", "SQL", "TEXT", "TREE", "|900,1800"}) LoadList(mode, text);
  return 0;
}
