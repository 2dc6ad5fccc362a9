#include "cli/script_surroundings.h"

#include <ctime>
#include <filesystem>

#include "environment/disk_files.h"
#include "runtime/dates.h"
#include "runtime/strings.h"
#include "script/marks.h"
#include "script/script_text.h"

namespace corvane::cli {

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
void Declare(script::VariableStore& store, const std::string& line) {
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

bool PassedForms::Form(script::frmLib& lib, script::ScriptText& script, const std::string& opener, bool) {
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
  script::ScriptState& state = lib.Parts().state;
  const std::string mark(1, script::labelMark);
  if (!name.empty()) state.formStore += mark + name + mark + block + '}' + runtime::kCrLf + script::listSep;
  state.lastValue = script::Text("2");
  return true;
}

void DeletingPlatform::Kill(const std::string& path) {
  std::error_code problem;
  if (std::filesystem::remove(environment::NativePath(path), problem)) return;
  throw runtime::Error(problem ? runtime::kPathFileAccessError : runtime::kFileNotFound);
}

double LocalClock::Now() {
  const std::time_t now = std::time(nullptr);
  const std::tm& local = *std::localtime(&now);
  runtime::DateParts parts;
  parts.year = local.tm_year + 1900L;
  parts.month = local.tm_mon + 1;
  parts.day = local.tm_mday;
  parts.hour = local.tm_hour;
  parts.minute = local.tm_min;
  parts.second = local.tm_sec;
  return runtime::DateOf(parts);
}

}  // namespace corvane::cli
