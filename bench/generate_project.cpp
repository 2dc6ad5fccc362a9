#include "bench/generate_project.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <stdexcept>

namespace corvane::bench {

namespace fs = std::filesystem;

namespace {

struct Module {
  std::string key, name, extension, text;
  std::vector<std::pair<std::string, std::string>> companions;  // name in the sample, bytes
  bool once = false;                                            // a project has one MDI form at most
};

std::string Read(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + path.string());
  return {std::istreambuf_iterator<char>(in), {}};
}

void Write(const fs::path& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary);
  out << bytes;
  if (!out) throw std::runtime_error("cannot write " + path.string());
}

bool IsWordByte(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

// [text] with [number] behind every word that is one of [names].
std::string Numbered(const std::string& text, const std::set<std::string>& names, const std::string& number) {
  std::string result;
  for (size_t at = 0; at < text.size();) {
    size_t end = at;
    while (end < text.size() && IsWordByte(text[end])) ++end;
    if (end == at) {
      result += text[at++];
      continue;
    }
    const std::string word = text.substr(at, end - at);
    result += word;
    if (names.contains(word)) result += number;
    at = end;
  }
  return result;
}

std::vector<Module> ModulesOf(const fs::path& sample, std::vector<std::string>& rest) {
  std::vector<Module> modules;
  std::istringstream project(Read(sample));
  for (std::string line; std::getline(project, line);) {
    if (line.ends_with('\r')) line.pop_back();
    const auto equal = line.find('=');
    const std::string key = line.substr(0, equal);
    static const std::set<std::string> kKeys = {"Form", "Module", "Class", "UserControl", "PropertyPage"};
    if (!kKeys.contains(key)) {
      if (key != "RelatedDoc") rest.push_back(line);
      continue;
    }
    const auto blank = line.rfind("; ");
    const fs::path file = sample.parent_path() / line.substr(blank == std::string::npos ? equal + 1 : blank + 2);
    Module module{key, file.stem().string(), file.extension().string(), Read(file), {}, false};
    module.once = module.text.find("Begin VB.MDIForm") != std::string::npos;
    for (const char* extension : {".frx", ".ctx"}) {
      fs::path companion = file;
      companion.replace_extension(extension);
      if (fs::exists(companion)) module.companions.emplace_back(companion.extension().string(), Read(companion));
    }
    modules.push_back(std::move(module));
  }
  return modules;
}

}  // namespace

GeneratedProject GenerateProject(const std::string& sample, const std::string& folder, long lines) {
  std::vector<std::string> rest;
  const auto modules = ModulesOf(sample, rest);
  if (modules.empty()) throw std::runtime_error(sample + " has no modules");
  std::set<std::string> names;
  for (const auto& module : modules) names.insert(module.name);

  fs::create_directories(folder);
  GeneratedProject made;
  made.path = (fs::path(folder) / "Generated.vbp").string();
  std::string project = rest.front() + "\r\n";
  for (long copy = 1; made.lines < lines; ++copy) {
    const std::string number = std::to_string(copy);
    for (const auto& module : modules) {
      if (module.once && copy > 1) continue;
      const std::string name = module.name + number, text = Numbered(module.text, names, number);
      const fs::path file = fs::path(folder) / (name + module.extension);
      Write(file, text);
      for (const auto& [extension, bytes] : module.companions) Write(fs::path(folder) / (name + extension), bytes);
      const bool named = module.key == "Module" || module.key == "Class";
      project += module.key + "=" + (named ? name + "; " : "") + name + module.extension + "\r\n";
      made.files.push_back(file.string());
      made.bytes += text.size();
      made.lines += std::count(text.begin(), text.end(), '\n');
    }
  }
  for (size_t i = 1; i < rest.size(); ++i) project += rest[i] + "\r\n";
  Write(made.path, project);
  return made;
}

}  // namespace corvane::bench
