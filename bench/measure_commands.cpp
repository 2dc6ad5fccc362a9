#include <stdexcept>
#include <vector>

#include "bench/measurements.h"
#include "codelist/list_menu.h"
#include "codelist/reading_commands.h"
#include "codelist/uc_list_box.h"
#include "environment/environment.h"
#include "explorer/frm_add_in.h"
#include "forms/headless_toolkit.h"
#include "tests/support/fake_services.h"

namespace corvane::bench {

namespace {

using codelist::ListEntry;

constexpr int kRounds = 7;
constexpr double kMostMilliseconds = 200;
constexpr long kLines = 100'000;

std::string FirstLines(std::string text, long count) {
  size_t at = 0;
  for (; count > 0; --count) {
    const size_t end = text.find("\r\n", at);
    if (end == std::string::npos) throw std::runtime_error("too few lines of code");
    at = end + 2;
  }
  text.resize(at);
  return text;
}

// A list of all the code of a project, and a container that writes what the list asks it to write.
class LoadedList {
 public:
  explicit LoadedList(std::string code) {
    window_.Show();
    list_.sGrid("VB");
    list_.ListRole = codelist::kSourcePane;  // the whole text, not the first procedure
    list_.UpdateString = [this](long line, const std::string& text) {
      list_.ReplaceItem(line, text);
      ++written_;
    };
    list_.SetText(std::move(code));
    FindPlaceInBlock();
  }

  long Lines() const { return list_.ListCount(); }

  // Milliseconds of [entry], chosen with the right button on [line] when those of [before] were chosen, one after the
  // other. It must do something.
  double Choose(ListEntry entry, const std::vector<ListEntry>& before, long line) {
    std::vector<double> times;
    for (int round = 0; round < kRounds; ++round) {
      for (const ListEntry each : before) Run(each, line);
      const auto looks = Looks();
      written_ = 0;
      times.push_back(Seconds([&] { Run(entry, line); }));
      if (written_ == 0 && Looks() == looks) throw std::runtime_error(Name(entry) + " did nothing");
    }
    return Median(times) * 1e3;
  }

  long LineInBlock() const { return place_; }
  std::string Name(ListEntry entry) { return codelist::ListMenuRows()[static_cast<size_t>(entry)].caption; }

 private:
  void Run(ListEntry entry, long line) {
    list_.SetStrPos(line);
    toolkit_.OnPopup(Name(entry));
    const auto y = static_cast<forms::Twips>(list_.CurrentRow() - 1) * list_.RowHeight() + 20;
    const forms::Twips x = list_.GutterWidth() + 10;
    list_.pic.UserMouseDown(forms::vbRightButton, 0, x, y);
    list_.pic.UserMouseUp(forms::vbRightButton, 0, x, y);
  }

  // What is hidden and what is selected.
  std::vector<bool> Looks() const {
    std::vector<bool> looks;
    for (long line = 1; line <= Lines(); ++line) {
      looks.push_back(list_.IsLineVisible(line));
      looks.push_back(list_.IsSelected(line));
    }
    return looks;
  }

  struct Window : forms::Form {
    Window(forms::Toolkit& toolkit, host::Services& services) : Form(toolkit, "Window"), list(*this, "list", services) {
      list.Move(0, 0, 12000, 12000);
    }
    codelist::ucListBox list;
  };

  // A line inside a block whose neighbour is inside too.
  void FindPlaceInBlock() {
    for (place_ = Lines() / 2; place_ < Lines(); ++place_)
      if (list_.LineLevel(place_) >= 34 && list_.LineLevel(place_ + 1) == list_.LineLevel(place_) &&
          !list_.List(place_).empty())
        break;
  }

  tests::FakeServices services_;
  forms::HeadlessToolkit toolkit_;
  Window window_{toolkit_, services_};
  codelist::ucListBox& list_ = window_.list;
  long place_ = 0, written_ = 0;
};

long RowHolding(const forms::ListControl& list, const std::string& text) {
  for (long row = 0; row < list.ListCount(); ++row)
    if (list.List(row).find(text) != std::string::npos) return row;
  throw std::runtime_error("no row holds " + text);
}

constexpr long kHeaderLine = 5;

// A module with a procedure of [lines] lines that needs formatting.
std::string LongModule(long lines) {
  const char* const kBlock[] = {"    For i = 1 To Count", "        If Prices(i) > Limit Then 'too dear",
                                "            Total = Total + 1", "        End If", "    Next i"};
  std::string code = "Attribute VB_Name = \"modLong\"\r\nOption Explicit\r\nPrivate Total As Long\r\n\r\n\r\n";
  code += "Private Sub Add()\r\n";
  for (long line = 2; line < lines; ++line) code.append(kBlock[line % 5]).append("\r\n");
  return code + "End Sub\r\n";
}

// Milliseconds of "Format Code" in the explorer, which writes each line into the module.
double FormatInExplorer() {
  tests::FakeServices services;
  forms::HeadlessToolkit toolkit;
  const auto environment = environment::Environment::Create(services.files, &services.clipboard);
  environment->OpenFromModules("Shop", {{"modLong.bas", LongModule(kLines)}});
  explorer::frmAddIn form(services, toolkit);
  form.VBInstance = environment;
  form.Show();
  form.lbxComp->UserSelect(RowHolding(*form.lbxComp, "modLong"));
  form.lbxProc->UserSelect(RowHolding(*form.lbxProc, "Add"));
  if (form.txtCode.ListCount() < kLines - 1) throw std::runtime_error("the procedure is not in view");
  toolkit.OnPopup("Format Code");
  const double seconds = Seconds([&] {
    form.txtCode.pic.UserMouseDown(forms::vbRightButton, 0, 1000, 20);
    form.txtCode.pic.UserMouseUp(forms::vbRightButton, 0, 1000, 20);
  });
  const auto module = environment->ActiveVBProject()->VBComponents()->Item("modLong")->CodeModule();
  if (module->Lines(kHeaderLine + 2, 1).starts_with("     ") || !services.prompts.messages.empty())
    throw std::runtime_error("the procedure was not formatted: " + module->Lines(kHeaderLine + 2, 1));
  return seconds * 1e3;
}

}  // namespace

void MeasureCommands(const Setting& setting, Table& table) {
  LoadedList list(FirstLines(CodeOf(setting.projects.at(1)), kLines));
  using enum ListEntry;
  struct Case {
    ListEntry entry;
    std::vector<ListEntry> before;
    long line;
  };
  const long inside = list.LineInBlock();
  const Case cases[] = {{mnuCollapce, {mnuClrCol}, inside},
                        {mnuLevelCol, {mnuClrCol}, inside},
                        {mnuLogCol, {mnuClrCol}, inside},
                        {mnuColSel, {mnuClrCol, mnuSelectAll}, 1},
                        {mnuExpand, {mnuClrCol, mnuSelectAll, mnuColSel}, 1},
                        {mnuClrCol, {mnuSelectAll, mnuColSel}, 1},
                        {mnuSelectAll, {mnuClrCol}, inside},
                        {mnuFormat, {mnuClrCol}, inside}};
  for (const Case& each : cases) {
    const double milliseconds = list.Choose(each.entry, each.before, each.line);
    table.AtMost("\"" + list.Name(each.entry) + "\", " + Count(list.Lines()) + " lines (ms)",
                 Milliseconds(milliseconds / 1e3), "", milliseconds, kMostMilliseconds);
  }
  std::vector<double> times;
  for (int round = 0; round < kRounds; ++round) times.push_back(FormatInExplorer());
  table.AtMost("\"Format Code\" in the explorer, a procedure of " + Count(kLines) + " lines (ms)",
               Milliseconds(Median(times) / 1e3), "", Median(times), kMostMilliseconds);
}

}  // namespace corvane::bench
