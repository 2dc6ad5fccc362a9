// ProjectFile: the lines of a .vbp. Lines that are not edited keep every byte; an edit touches its own line alone.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "environment/environment.h"
#include "environment/module_kinds.h"

namespace corvane::environment {

// A line that names a file: "Form=Form1.frm", "Module=Main; ..\Main.bas".
struct ComponentLine {
  long id = 0;  // of the line, as long as the file lives
  const ModuleKind* kind = nullptr;
  std::string name;  // empty where the line gives none
  std::string path;  // as written
};

class ProjectFile {
 public:
  explicit ProjectFile(std::string_view bytes);

  // What is wrong with it as a whole; empty for a project file. Nothing may be taken from it then.
  const std::string& Refusal() const { return refusal_; }
  const std::vector<Problem>& Problems() const { return problems_; }  // without a file name
  std::string Write() const;

  // Value of a key in front of the first section, without its quotes; empty where there is none.
  std::string Value(std::string_view key) const;
  long IdOf(std::string_view key) const;          // of that line; 0 where there is none
  std::vector<ComponentLine> Components() const;  // in file order
  long LineNumberOf(long id) const;               // from 1; 0 for a line that is gone

  // Edits.
  long AddComponent(const ModuleKind& kind, const std::string& name, const std::string& path);  // the new line's id
  void RemoveLine(long id);
  void RenameComponent(long id, const std::string& name);  // where the line gives a name
  void SetPath(long id, const std::string& path);
  // The lines that name a component: Startup, IconForm, DebugStartupComponent.
  void RenameInSettings(const std::string& old_name, const std::string& name);

 private:
  struct Line {
    long id = 0;
    std::string text, line_end;
    bool in_section = false;
  };
  Line* Find(long id);
  void CheckBytes(std::string_view bytes);
  void CheckLines();
  size_t PlaceFor(const ModuleKind& kind) const;
  std::vector<Line> lines_;
  std::string line_end_ = "\r\n", refusal_;
  std::vector<Problem> problems_;
  long last_id_ = 0;
};

}  // namespace corvane::environment
