#include "script/library_file.h"

#include "runtime/strings.h"
#include "script/script_text.h"

namespace corvane::script {

using runtime::BeginsWith;
using runtime::UCase;

namespace {

// The last line needs no line end.
ScriptText ReadLibrary(host::Services& services) {
  std::string text = WithLineEnds(services.Files.Read(services.App.Path + "\\LibCode.txt"));
  if (!text.ends_with(runtime::kCrLf)) text += runtime::kCrLf;
  return ScriptText(std::move(text));
}

}  // namespace

std::vector<std::string> CommonConstants(host::Services& services) {
  constexpr size_t kNearestEquals = 2;
  std::vector<std::string> constants;
  runtime::PassOverErrors([&] {
    ScriptText library = ReadLibrary(services);
    auto line = library.NextLine();
    while (line && (BeginsWith(*line, "+") || !runtime::Holds(UCase(runtime::Trim(*line)), "{COMMON}")))
      line = library.NextLine();
    while (line && (line = library.NextLine())) {
      const std::string constant = runtime::LTrim(*line);
      if (BeginsWith(constant, "}")) return;
      const size_t equals = constant.find('=');
      if (!BeginsWith(constant, "$") || equals == std::string::npos || equals < kNearestEquals) continue;
      constants.push_back(UCase(constant.substr(0, equals)) + constant.substr(equals));
    }
  });
  return constants;
}

std::string LibraryItem(const std::string& title, host::Services& services) {
  ScriptText library = ReadLibrary(services);
  const std::string sought = UCase(title);
  auto line = library.NextLine();
  for (; line; line = library.NextLine()) {
    const long place = runtime::InStr(UCase(*line), sought);
    if (!BeginsWith(*line, "+") && (place == 1 || place == 2)) break;
  }
  std::string item;
  while (line && (line = library.NextLine()) && !BeginsWith(*line, "{")) item.append(*line).append(runtime::kCrLf);
  return item;
}

}  // namespace corvane::script
