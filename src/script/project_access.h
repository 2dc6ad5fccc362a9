// ProjectAccess: the functions and commands that read and change the project that is open in an environment.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/services.h"
#include "script/ide_access.h"
#include "script/ide_commands.h"
#include "script/ide_target.h"

namespace corvane::script {

class ProjectAccess : public IdeAccess, public IdeCommands {
 public:
  ProjectAccess(host::Ref<host::VBE> vbe, host::Services& services) : targets_(std::move(vbe)), services_(services) {}

  // IdeAccess
  std::string ProjectName() override;
  std::string ProjectFileName() override;
  std::string Components(const std::string& filter) override;
  std::string GetProp(ErrorReport& errors, const std::string& address_and_property) override;
  void SetProp(ErrorReport& errors, const std::string& address, const std::string& value) override;
  std::string FindLine(ErrorReport& errors, const std::string& arguments) override;
  std::string Declaration(ErrorReport& errors, const std::string& arguments) override;
  std::string ProcLines(ErrorReport& errors, const std::string& arguments) override;
  std::string CodeLines(ErrorReport& errors, const std::string& arguments) override;
  std::string ReadCode(ErrorReport& errors, const std::string& arguments) override;
  std::string GetSelection(ErrorReport& errors, const std::string& component) override;
  std::string Add(ErrorReport& errors, const std::string& arguments) override;
  std::string SetPicture(ErrorReport& errors, const std::string& arguments) override;

  // IdeCommands
  void Replace(ErrorReport& errors, const std::string& first, const std::string& second) override;
  void Create(ErrorReport& errors, const std::string& class_name, const std::string& name) override;
  void Remove(ErrorReport& errors, const std::string& address) override;
  void ReplaceLine(ErrorReport& errors, const std::string& arguments) override;
  void DeleteCode(ErrorReport& errors, const std::string& arguments) override;
  void InsertCode(ErrorReport& errors, const std::string& arguments) override;
  void WriteResult(ErrorReport& errors, const std::string& arguments, std::string_view result) override;
  bool GoCodeLine(ErrorReport& errors, const std::string& arguments) override;
  void Open(ErrorReport& errors, const std::string& component) override;

 private:
  using Parts = std::vector<std::string>;

  // These report what is missing.
  host::Ref<host::CodeModule> Module(ErrorReport& errors, const std::string& name) const;
  host::Ref<host::Properties> PropertiesAt(ErrorReport& errors, const std::string& address) const;

  // Those of [which], "Controls" or "SelectedVBControls".
  std::string ControlList(const std::string& component, const std::string& which) const;
  // The first line that holds [text], in any case; 0 if none does.
  static long LineOfText(host::CodeModule& module, const std::string& text);
  // Nothing where the module has no open pane.
  host::Ref<host::CodePane> OpenPaneOf(host::CodeModule& module) const;
  void CreateFromFile(ErrorReport& errors, const std::string& path);
  void CreateControl(ErrorReport& errors, const Parts& class_and_file, const std::string& name);
  host::Ref<host::VBControl> NewControl(host::VBControls& controls, const Parts& class_and_file,
                                        const host::Ref<host::VBControl>& container) const;
  void AddPicture(host::VBControl& list, const Parts& arguments) const;
  void AddButton(host::VBControl& toolbar, const IdeAddress& address, const Parts& arguments) const;

  IdeTargets targets_;
  host::Services& services_;
};

}  // namespace corvane::script
