// CheckFiles: every file of what is open, written to memory and compared with the disk. What is asked of the designers
// on the way shows what was not understood in them.
#include <algorithm>

#include "environment/group_file.h"
#include "environment/open_environment.h"
#include "environment/open_project.h"
#include "environment/paths.h"
#include "environment/project.h"

namespace corvane::environment {

namespace {

CheckedFile Compared(const std::string& path, std::string_view read, std::string_view written) {
  auto [at, other] = std::mismatch(read.begin(), read.end(), written.begin(), written.end());
  bool identical = at == read.end() && other == written.end();
  return {path, identical, identical ? -1 : static_cast<long>(at - read.begin())};
}

class Checker {
 public:
  Checker(OpenEnvironment& environment, host::Files& files) : environment_(environment), files_(files) {}

  std::vector<CheckedFile> Run() {
    if (const std::string& group = environment_.GroupPath(); !group.empty())
      Check(group, [&] { return GroupFile(files_.Read(group)).Write(); });
    for (const auto& project : environment_.OpenProjects()) {
      if (!project->PathAsRead().empty()) Check(project->PathAsRead(), [&] { return project->WriteToText(); });
      for (const auto& module : project->OpenModules())
        if (HasCode(module->Type()) && !module->Path().empty()) CheckModule(*module);
    }
    return std::move(checked_);
  }

 private:
  void CheckModule(OpenModule& module) {
    module.ReportDesigner();
    Check(module.Path(), [&] { return module.WriteToText(); });
    for (const DesignerSibling& sibling : module.Siblings())
      Check(JoinPath(FolderOf(module.Path()), sibling.name), [&] { return sibling.bytes; });
  }

  // A file shared by two projects is checked for each, as each would write it.
  template <class Write>
  void Check(const std::string& path, Write write) {
    try {
      checked_.push_back(Compared(path, files_.Read(path), write()));
    } catch (const host::Error& error) {
      environment_.Report({path, 0, ReasonOf(error)});
    }
  }

  OpenEnvironment& environment_;
  host::Files& files_;
  std::vector<CheckedFile> checked_;
};

}  // namespace

std::vector<CheckedFile> CheckFiles(Environment& environment, host::Files& files) {
  return Checker(dynamic_cast<OpenEnvironment&>(environment), files).Run();
}

}  // namespace corvane::environment
