#include "script/script_path.h"

#include <optional>

#include "runtime/strings.h"

namespace corvane::script {

using runtime::Holds;

namespace {

constexpr std::string_view kCommon = "{COMMON}";
constexpr size_t kShortestName = 2;

bool HasHead(const std::string& spec) {
  return runtime::InStr(2, spec, "+") > 0;
}

// With its "\"; the whole of a path without one.
std::string FolderOf(const std::string& path) {
  return path.substr(0, path.rfind('\\') + 1);
}

// Nothing stands beside a project that was not saved yet.
std::string BesideProject(const std::string& name, Surroundings& around) {
  const std::string project = around.ide.ProjectFileName();
  return project.empty() ? std::string() : FolderOf(project) + name;
}

std::string WorkShopFile(const std::string& name, Surroundings& around) {
  return around.services.App.Path + "\\WorkShop\\" + name;
}

// Up to the first "}" before a line end.
std::optional<std::string> CommonSection(const std::string& library) {
  const size_t header = runtime::UCase(library).find(kCommon);
  if (header == std::string::npos) return std::nullopt;
  const size_t begin = header + kCommon.size();
  const size_t end = library.find("}\r\n", begin);
  return library.substr(begin, end == std::string::npos ? end : end - begin) + runtime::kCrLf;
}

std::optional<std::string> CommonValue(const std::string& section, const std::string& head) {
  const std::string key = std::string(runtime::kCrLf) + runtime::UCase(head) + '=';
  const size_t line = runtime::UCase(section).find(key);
  if (line == std::string::npos) return std::nullopt;
  const size_t value = line + key.size();
  return section.substr(value, section.find(runtime::kCrLf, value) - value);
}

}  // namespace

std::string ResolveScriptPath(const std::string& spec, Surroundings& around) {
  const auto common = HasHead(spec) ? CommonSection(around.window.LibraryText()) : std::nullopt;
  if (HasHead(spec)) {
    const size_t plus = spec.find('+', 1);
    std::string head = runtime::Trim(spec.substr(0, plus));
    if (!head.empty() && head.back() == ':') head.pop_back();
    const std::string tail = runtime::Trim(spec.substr(plus + 1));
    if (runtime::UCase(head) == "$APPPATH") return BesideProject(tail, around);
    if (common) {
      if (const auto value = CommonValue(*common, head)) return *value + tail;
      return runtime::UCase(head) == "$PATH" ? WorkShopFile(tail, around) : std::string();
    }
  }
  return Holds(spec, ":\\") || Holds(spec, "\\\\") ? spec : WorkShopFile(spec, around);
}

std::string IncludePath(const std::string& name, Surroundings& around) {
  if (name.size() < kShortestName) return {};
  if (HasHead(name)) return ResolveScriptPath(name, around);
  if (Holds(name, ":") && Holds(name, "\\")) return name;
  const std::string in_folder = ResolveScriptPath("$PATH+" + name, around);
  if (around.services.Files.Attributes(in_folder) != host::kNoSuchFile) return in_folder;
  return ResolveScriptPath(name, around);
}

}  // namespace corvane::script
