#include "script/names.h"

#include <cmath>
#include <unordered_map>

#include "runtime/strings.h"
#include "script/marks.h"
#include "script/numbers.h"

namespace corvane::script {

namespace {

std::string ProjectPath(NameUse& use) {
  const std::string file = use.outside.ide.ProjectFileName();
  const long slash = runtime::InStrRev(file, "\\");
  return slash == 0 ? file : runtime::Left(file, slash - 1);
}

std::string Nothing(NameUse&) {
  return {};
}

constexpr PredefinedName kBefore[] = {
    {"TRUE", "The truth.", [](NameUse&) { return std::string("True"); }},
    {"ME", "The selected component.", [](NameUse&) { return std::string("Me"); }},
    {"FALSE", "Its opposite.", [](NameUse&) { return std::string("False"); }},
    {"NOT", "Turns the truth behind it over.",
     [](NameUse& use) {
       use.state.notFlag = !use.state.notFlag;
       return std::string();
     }},
    {"(", "A bracket alone.", Nothing},
    {")", "A bracket alone.", Nothing},
    {"VBCRLF", "A line end.", [](NameUse&) { return std::string(runtime::kCrLf); }},
    {"WVCANCEL", "Code of a dialog that was cancelled.", [](NameUse&) { return std::string("0"); }},
    {"WVNEXT", "Code of a dialog's forward button.", [](NameUse&) { return std::string("2"); }},
    {"WVFIN", "Code of a dialog's last button.", [](NameUse&) { return std::string("2"); }},
    {"WVPREV", "Code of a dialog's back button.", [](NameUse&) { return std::string("1"); }},
    {"$APPNAME", "Name of the project.", [](NameUse& use) { return use.outside.ide.ProjectName(); }},
    {"$APPPATH", "Folder of the project.", ProjectPath},
    {"RESULT", "The text that the script has produced so far.",
     [](NameUse& use) { return std::string(use.state.resultText.Get()); }},
};

constexpr PredefinedName kBehind[] = {
    {"$CVPATH", "Folder of this program.", [](NameUse& use) { return use.outside.services.App.Path; }},
    {"$SCRIPTNAME", "The file last included.", [](NameUse& use) { return use.state.scriptFile; }},
    {"$PATH", "Folder of the scripts.", [](NameUse& use) { return use.outside.services.App.Path + "\\Workshop"; }},
};

using ByName = std::unordered_map<std::string_view, const PredefinedName*>;

ByName Collect(std::span<const PredefinedName> rows) {
  ByName by_name;
  for (const PredefinedName& row : rows) by_name[row.name] = &row;
  return by_name;
}

const PredefinedName* Find(const ByName& rows, std::string_view name) {
  const auto found = rows.find(name);
  return found == rows.end() ? nullptr : found->second;
}

const ByName& Before() {
  static const ByName rows = Collect(kBefore);
  return rows;
}
const ByName& Behind() {
  static const ByName rows = Collect(kBehind);
  return rows;
}

}  // namespace

std::span<const PredefinedName> NamesBeforeVariables() {
  return kBefore;
}
std::span<const PredefinedName> NamesBehindVariables() {
  return kBehind;
}

bool HidesVariables(std::string_view upper) {
  return Find(Before(), upper) != nullptr;
}

std::string Names::Value(const std::string& token) {
  const auto number = NumberOf(token);
  if (!number) return Named(token);
  return token[0] == '&' ? TextOfNumber(std::nearbyint(*number)) : token;
}

std::string Names::Named(const std::string& token) {
  if (token.empty()) return {};
  const std::string name = runtime::UCase(token);
  if (const PredefinedName* row = Find(Before(), name)) return row->value(use_);
  if (runtime::Holds(name, ".")) return PropertyOf(token, name);
  if (const long place = store_.FindVisible(name, state_.subDepth)) {
    const long cell = store_.CellNumberAt(place);
    return cell > 0 ? TextOf(store_.Value(cell)) : std::string(store_.ValueAt(place));
  }
  if (const auto control = ReadDialogs(name)) return control->text;
  if (const PredefinedName* row = Find(Behind(), name)) return row->value(use_);
  if (!state_.lvalueMode) errors_.ReportError("Variable " + token + " is not found");
  return {};
}

// A mark that the store is made of may not come in from a dialog.
std::optional<ControlValue> Names::ReadDialogs(const std::string& name) {
  std::optional<ControlValue> control;
  if (state_.dialogActive) control = ReadControl(state_.dialogValues, name);
  if (!control) control = ReadControl(state_.savedDialogValues, name);
  if (!control) return {};
  state_.indexValue = control->index;
  if (const size_t mark = control->text.find("<("); mark != std::string::npos) {
    errors_.ReportError(control->text + " contains wrong symbols '<(' ");
    control->text.resize(mark);
  }
  return control;
}

std::string Names::PropertyOf(const std::string& token, const std::string& upper) {
  const size_t dot = upper.rfind('.');
  const std::string property = upper.substr(dot + 1);
  if (property == "INDEX" || property == "ITEM")
    if (const auto control = ReadDialogs(upper.substr(0, dot)))
      return property == "INDEX" ? state_.indexValue : control->item;
  return use_.outside.ide.GetProp(errors_, token.substr(0, dot) + listSep + token.substr(dot + 1));
}

}  // namespace corvane::script
