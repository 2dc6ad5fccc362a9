#include "script/windowless.h"

#include "runtime/strings.h"
#include "script/marks.h"
#include "script/script_text.h"

namespace corvane::script {

using runtime::BeginsWith;
using runtime::UCase;

namespace {

// The value of NAME= on a FORM line, in upper case; empty if there is none.
std::string NameOf(const std::string& opener) {
  const std::string upper = UCase(opener);
  const size_t key = upper.find("NAME=");
  if (key == std::string::npos) return {};
  const size_t value = key + 5;
  std::string name = runtime::Trim(upper.substr(value, upper.find(',', value) - value));
  std::erase(name, '"');
  return name;
}

// "CONST name=value". One that is known stays.
void Declare(VariableStore& store, const std::string& line) {
  constexpr size_t kName = 6;
  const size_t equals = line.find('=');
  if (equals == std::string::npos || equals <= kName) return;
  const std::string name = runtime::Trim(UCase(line.substr(kName, equals - kName)));
  const std::string value = runtime::Trim(line.substr(equals + 1));
  if (name.empty() || value.empty() || store.FindForReading(name) != 0) return;
  store.AppendConstant(name + '=' + value);
}

}  // namespace

std::string WorkshopTexts::LibraryText() {
  std::string text;
  runtime::PassOverErrors([&] { text = services_.Files.Read(services_.App.Path + "\\LibCode.txt"); });
  return text;
}

bool PassedForms::Form(frmLib& lib, ScriptText& script, const std::string& opener, bool) {
  constexpr size_t kClosesWithin = 9;
  const std::string name = NameOf(opener);
  std::string block = std::string("FORM{") + runtime::kCrLf;
  bool help = false;
  for (auto line = script.NextLine(); line && line->substr(0, kClosesWithin).find('}') == std::string_view::npos;
       line = script.NextLine()) {
    block.append(*line).append(runtime::kCrLf);
    const std::string text = runtime::Trim(*line), upper = UCase(text);
    if (help || BeginsWith(upper, "HELP")) {
      help = !BeginsWith(upper, "END ");
    } else if (BeginsWith(upper, "DIM ")) {
      lib.Parts().assignment.DeclareVars(text);
    } else if (BeginsWith(upper, "CONST ")) {
      Declare(lib.Parts().store, text);
    }
  }
  ScriptState& state = lib.Parts().state;
  const std::string mark(1, labelMark);
  if (!name.empty()) state.formStore += mark + name + mark + block + '}' + runtime::kCrLf + listSep;
  state.lastValue = Text("2");
  return true;
}

}  // namespace corvane::script
