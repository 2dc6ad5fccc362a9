// OpenModule: a component that is open, with its text, its designer, its windows and its place on disk. The designer is
// read when somebody asks for it.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "environment/code_pane.h"
#include "environment/designer_form.h"
#include "environment/module.h"
#include "environment/module_find.h"
#include "environment/module_head.h"
#include "environment/module_kinds.h"
#include "environment/module_text.h"
#include "environment/procedure_index.h"
#include "host/services.h"

namespace corvane::environment {

class OpenEnvironment;
class OpenProject;

class OpenModule : public Module,
                   public PaneOwner,
                   public DesignerOwner,
                   public std::enable_shared_from_this<OpenModule> {
 public:
  // A module of [project] as its file holds it; [path] is empty for one that was never saved.
  struct Source {
    const ModuleKind* kind = nullptr;
    std::string path, bytes;
    ModuleHead head;
    host::FileStamp stamp;
    std::string name;
    long project_line = 0;  // id of its line in the project file; 0 for none
  };
  OpenModule(OpenProject& project, Source source);
  ~OpenModule() override;
  // The component is removed: its windows close, with notice.
  void CloseWindows();
  // The component was removed or its project ends.
  void Detach();

  // host::VBComponent
  std::string Name() override { return name_; }
  void SetName(const std::string& name) override;
  host::ComponentType Type() override { return kind_->type; }
  host::Ref<host::CodeModule> CodeModule() override;
  host::Ref<host::VBForm> Designer() override;
  std::string DesignerID() override { return {}; }  // forms and their kin alone are designed here
  bool HasOpenDesigner() override { return designer_open_; }
  host::Ref<host::Window> DesignerWindow() override;
  host::Ref<host::Properties> Properties() override;
  long FileCount() override;
  std::string FileNames(long index) override;
  void SaveAs(const std::string& path) override;
  host::Ref<host::VBE> VBE() override;

  // Module
  std::shared_ptr<Project> ProjectOf() const override;
  long Position() const override;
  bool IsDirty() const override { return dirty_; }
  std::string Path() const override;
  std::string WriteToText() const override;
  std::string_view LineView(long line) const override { return text_.Line(line); }
  void ReplaceLines(long start, long count, const std::string& text) override;
  void UserSelection(const host::Selection& selection) override;
  void UserActivatePane() override;
  void UserClosePane() override;
  bool HasPane() const override { return pane_ && pane_->IsOpen(); }
  host::Selection PaneSelection() const override;
  void UserOpenDesigner(bool open) override;
  void UserSelectControls(const std::vector<long>& positions) override;
  bool ChangedOnDisk() const override;
  std::vector<std::string> ChangedSiblings() const override;
  std::vector<ChangedFile> FilesChangedOnDisk() const override;
  void ReadAgain() override;

  // PaneOwner
  host::Ref<host::CodeModule> PaneModule() override { return CodeModule(); }
  std::string PaneCaption() override;
  long PaneLines() override { return text_.Count(); }
  long PaneLineLength(long line) override { return static_cast<long>(text_.Line(line).size()); }
  void PaneWasShown() override;
  void PaneWasClosed() override;
  void PaneSelectionSet() override;

  // DesignerOwner
  std::string ComponentName() override { return name_; }
  void RenameComponent(const std::string& name) override { SetName(name); }
  std::string ModuleAttribute(const std::string& name) override;
  std::string ReadSibling(const std::string& name) override;
  std::string NewSiblingName() override;
  void DesignerChanged() override;

  // For the code module.
  const ModuleText& Text() const { return text_; }
  const ProcedureIndex& Procedures() const;
  bool FindIn(const FindRequest& request, FoundPlace& place) const;
  // Replaces [count] lines from [start] by the lines of [text]; [text] null: by none.
  void Change(long start, long count, const std::string* text, bool by_user);
  Pane& PaneOf();

  // For the project. PathAsRead is its path; relative for a text of a project that was never saved, which has no file
  // yet.
  const std::string& PathAsRead() const { return path_; }
  long ProjectLine() const { return project_line_; }
  void SetProjectLine(long id) { project_line_ = id; }
  const ModuleKind& Kind() const { return *kind_; }
  const std::vector<long>& Charsets() const { return charsets_; }  // of its designer's fonts
  // Reports what was not understood of its designer and of its references to binary files, once.
  void ReportDesigner();
  // The binary files of its designer, all read.
  std::vector<DesignerSibling> Siblings() { return designer_ ? designer_->Siblings() : std::vector<DesignerSibling>(); }
  // Writes the binary files of the designer that were changed beside [path].
  void WriteSiblings(const std::string& path);
  // Error 70 where somebody else changed one of these since it was read.
  void RequireUnchangedSiblings() const;
  // Whether [path] is that of its file or of a binary file that its designer part refers to.
  bool UsesFile(const std::string& path) const;
  // The name of the binary file beside [path] once the module is saved there; empty if there is none.
  std::string SiblingNameAt(const std::string& path) const;
  // Error 58 where that is a file which it did not read, Error 70 where somebody else changed it since.
  void RequireOwnSibling(const std::string& path) const;
  // The name of the binary file that its designer part refers to; empty if there is none.
  std::string SiblingName() const;
  std::vector<std::string> SiblingNames() const;
  // The designer's references name a file beside [path] instead. Returns the name that they had.
  std::string MoveSibling(const std::string& path);
  void MoveSiblingBack(const std::string& name);
  // Its file holds what WriteToText gave.
  void TakeSaved(const std::string& path, const host::FileStamp& stamp);
  // Takes the text, the name and the designer of its file for its own.
  void Reload(Source source);
  void SetDirty();

 private:
  OpenEnvironment& Environment() const;  // Error 91 when it is closed
  void TakeHead(const ModuleHead& head);
  void TakeText(ModuleText text);
  // Replaces lines, with notice.
  void Replace(long start, long count, const std::vector<std::string_view>& lines, bool by_user);
  environment::Designer& DesignerOf();
  std::string HeadText() const;
  void RenameHead(const std::string& name);
  bool IsForeignSibling(const std::string& path) const;
  void TakeName(const std::string& name);
  void ShowDesigner(bool open);
  WindowActs DesignerActs();

  std::weak_ptr<OpenProject> project_;
  const ModuleKind* kind_;
  std::string name_, path_;
  long project_line_;
  host::FileStamp stamp_;
  ModuleText text_;
  size_t designer_end_ = 0;
  bool cut_off_ = false;
  std::vector<long> charsets_;
  bool dirty_ = false;
  mutable std::optional<ProcedureIndex> procedures_;
  std::shared_ptr<Pane> pane_;
  // The designer and what it was made from: the head in front of the attributes of the module.
  std::unique_ptr<environment::Designer> designer_;
  std::map<std::string, host::FileStamp> siblings_read_;  // by upper-cased path
  std::shared_ptr<ActWindow> designer_window_;
  bool designer_open_ = false, designer_reported_ = false;
};

}  // namespace corvane::environment
