// What the tests of the environment share: projects opened from texts or from files in memory, and error numbers.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "environment/environment.h"
#include "environment/memory_files.h"
#include "environment/module.h"
#include "environment/project.h"

namespace corvane::environment {

// The number of the Error that [action] throws; 0 if it throws none.
inline long ErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const runtime::Error& error) {
    return error.Number();
  }
  return 0;
}

// Its description; empty text if it throws none.
inline std::string ReasonOfFailure(const std::function<void()>& action) {
  try {
    action();
  } catch (const runtime::Error& error) {
    return error.Description();
  }
  return {};
}

// "a|b" as "a" CR LF "b".
inline std::string Text(std::string_view lines) {
  std::string text;
  for (char c : lines) c == '|' ? text += "\r\n" : text += c;
  return text;
}

struct Opened {
  MemoryFiles files;
  std::shared_ptr<Environment> environment = Environment::Create(files);

  // One standard module Main of these lines, "|" between them.
  static std::unique_ptr<Opened> Module(std::string_view lines) {
    auto opened = std::make_unique<Opened>();
    std::string text = Text(lines);
    if (!text.empty()) text += "\r\n";
    opened->environment->OpenFromModules("P", {{"Main.bas", "Attribute VB_Name = \"Main\"\r\n" + text}});
    return opened;
  }
  void PutProject(const std::string& lines) { files.Put("C:\\P\\P.vbp", Text(lines)); }
  void Put(const std::string& name, const std::string& lines) { files.Put("C:\\P\\" + name, Text(lines)); }
  std::string Disk(const std::string& name) { return files.Read("C:\\P\\" + name); }

  std::shared_ptr<environment::Project> Project(size_t position = 0) { return environment->Projects().at(position); }
  std::shared_ptr<environment::Module> At(size_t position = 0) { return Project()->Modules().at(position); }
  host::Ref<host::CodeModule> Code(size_t position = 0) { return At(position)->CodeModule(); }
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const auto& module : Project()->Modules()) names.push_back(module->Name());
    return names;
  }
  // "file:line: reason" of each problem.
  std::vector<std::string> Problems() {
    std::vector<std::string> lines;
    for (const Problem& problem : environment->Problems())
      lines.push_back(problem.file + ":" + std::to_string(problem.line) + ": " + problem.reason);
    return lines;
  }
};

}  // namespace corvane::environment
