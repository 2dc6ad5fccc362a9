// Module: one component with the file it came from. The environment's VBComponent.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/project.h"
#include "host/services.h"

namespace corvane::environment {

class Project;

struct ChangedFile {
  std::string path;
  host::FileStamp stamp;  // as it is now
  bool operator==(const ChangedFile&) const = default;
};

// What the desk and the command line need beyond the object model.
class Module : public host::VBComponent {
 public:
  virtual std::shared_ptr<Project> ProjectOf() const = 0;
  virtual long Position() const = 0;  // in VBComponents, from 1
  virtual bool IsDirty() const = 0;
  virtual std::string Path() const = 0;  // full Windows path; empty while never saved
  // The file as it would be written now.
  virtual std::string WriteToText() const = 0;
  // Code, without the copying of Lines: the view lives until the module's text changes. Requires: 1 <= line <= count.
  virtual std::string_view LineView(long line) const = 0;
  // The editor's act: replaces [count] lines from [start] by [text] (cut at CR LF or LF; empty text is one blank line,
  // so that deleting alone is CodeModule's). One change for observers. A member that an editor's act brings back, as
  // undoing does, has its hidden attributes again.
  virtual void ReplaceLines(long start, long count, const std::string& text) = 0;
  // Selection of the code pane as the user moves it; no notice to the observer.
  virtual void UserSelection(const host::Selection& selection) = 0;
  virtual void UserActivatePane() = 0;
  virtual void UserClosePane() = 0;
  virtual bool HasPane() const = 0;
  virtual host::Selection PaneSelection() const = 0;
  virtual void UserOpenDesigner(bool open) = 0;
  virtual void UserSelectControls(const std::vector<long>& positions) = 0;  // in VBControls, from 1
  // Takes over the new stamp after a save, tells whether somebody else changed the file since it was read.
  virtual bool ChangedOnDisk() const = 0;
  // Full paths of the binary files that Save would write and that somebody else changed since they were read.
  virtual std::vector<std::string> ChangedSiblings() const = 0;
  // Its files, binary ones too, that somebody else changed since they were read; none of them that is gone.
  virtual std::vector<ChangedFile> FilesChangedOnDisk() const = 0;
  // Takes over its files as they are on disk, edits made here are lost. Panes and designers stay open, selections stay
  // on the lines they stood on; what was handed out of its designer is Error 91 from then on. Throws host::Error with
  // the reason where the file cannot be read, or is no such component any more: everything is as it was then.
  virtual void ReadAgain() = 0;
};

}  // namespace corvane::environment
