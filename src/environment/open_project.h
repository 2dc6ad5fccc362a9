// OpenProject: a .vbp that is open, with its modules.
#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "environment/open_module.h"
#include "environment/project.h"
#include "environment/project_file.h"

namespace corvane::environment {

class OpenEnvironment;

class OpenProject : public Project, public std::enable_shared_from_this<OpenProject> {
 public:
  // [path] may be empty: never saved.
  OpenProject(OpenEnvironment& environment, std::string path, ProjectFile file, const host::FileStamp& stamp);
  ~OpenProject() override;
  // Reads the modules that its file names, those in [sources] (paths as the project writes them) first.
  void ReadModules(const std::vector<SourceFile>& sources);

  // host::VBProject
  std::string Name() override;
  std::string FileName() override;
  host::Ref<host::VBComponents> VBComponents() override;
  void AddToolboxProgID(const std::string& prog_id, const std::string& file) override;

  // Project
  std::vector<std::shared_ptr<Module>> Modules() const override;
  bool IsDirty() const override { return dirty_; }
  std::string WriteToText() const override { return file_.Write(); }
  void Save(Module& module, OnDiskChange rule) override;
  bool ChangedOnDisk() const override;
  void SaveAs(Module& module, const std::string& path, FileInTheWay rule) override;
  void SaveProjectFile(OnDiskChange rule) override;

  const std::string& PathAsRead() const { return path_; }  // names of this machine in UTF-8
  // A file in the folder of [path]: from the texts that the project was opened with, else from disk.
  std::string ReadBeside(const std::string& path, const std::string& name) const;
  std::shared_ptr<OpenEnvironment> EnvironmentOf() const { return environment_.lock(); }
  const std::vector<std::shared_ptr<OpenModule>>& OpenModules() const { return modules_; }
  long PositionOf(const OpenModule& module) const;
  bool HasName(const std::string& name, const OpenModule* but) const;
  // The file of [module] with [bytes] in it.
  OpenModule::Source SourceOf(OpenModule& module, std::string bytes, const host::FileStamp& stamp) const;
  // The same with what is on disk. Throws host::Error with the reason where it cannot take the place of what was read.
  OpenModule::Source ReadFileAgain(OpenModule& module) const;
  void RequireFreeName(const std::string& name, const OpenModule* but) const;  // Error 32813
  void WasRenamed(OpenModule& module, const std::string& old_name);
  // Whether [path] is that of the project or of a file of its modules, [but] left out; of modules that were not read
  // too.
  bool UsesFile(const std::string& path, const OpenModule* but) const;
  std::shared_ptr<OpenModule> Add(host::ComponentType type);
  std::shared_ptr<OpenModule> AddFile(const std::string& path);
  void Remove(const host::Ref<host::VBComponent>& component);
  void Close();

 private:
  class Components;
  OpenEnvironment& Environment() const;  // Error 91 when it is closed
  void ReadModule(const ComponentLine& line, const std::vector<SourceFile>& sources);
  void TakeHead(OpenModule::Source& source, const std::string& name_in_project) const;
  void CheckResourceFile();
  bool IsFolder(const std::string& path) const;
  bool IsMissing(const std::string& path) const;
  void ReportName(const ComponentLine& line, const OpenModule::Source& source);
  void KeepLooseTexts(const std::vector<SourceFile>& sources);
  int CodePageOfFonts() const;
  int CodePageOfPaths(const std::vector<ComponentLine>& lines) const;
  void NotifyComponents();
  bool ReadBytes(const ComponentLine& line, const std::vector<SourceFile>& sources, OpenModule::Source& source);
  static std::string TextRefusal(const OpenModule::Source& source);
  std::string Refusal(const OpenModule::Source& source) const;
  void CollectNamesInUse();
  void AddNamesInUse(OpenModule& module);
  void ReportAt(const ComponentLine& line, const std::string& reason);
  void SetDirty();
  std::string WholePath(const std::string& path) const;  // Error 76 for a relative one without a folder
  void RequireFreeFiles(const OpenModule& module, const std::string& path) const;
  void WriteModule(OpenModule& module, const std::string& path);
  void ListInFile(OpenModule& module);
  std::string NewName(const ModuleKind& kind) const;

  std::weak_ptr<OpenEnvironment> environment_;
  std::string path_;
  ProjectFile file_;
  host::FileStamp stamp_;
  bool dirty_ = false;
  std::vector<std::shared_ptr<OpenModule>> modules_;
  std::unordered_set<std::string> paths_in_use_;               // in the code page, upper-cased, while modules are read
  std::unordered_map<std::string, std::string> names_in_use_;  // upper-cased names and their files, likewise
  std::vector<SourceFile> loose_texts_;                        // those that no line names: binary files of designers
};

}  // namespace corvane::environment
