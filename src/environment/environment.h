// Environment: a Visual Basic 6 environment that lives on project files. It implements the host contract, and offers
// the desk, the command line and tests what a user does in the environment itself: open, save, edit, click, run.
//
// Invariant: no byte of a file changes that was not edited; a file that was not understood is never written.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/services.h"
#include "host/vbe.h"

namespace corvane::environment {

class Project;
class Module;
class CommandBarModel;
class Observer;

// Something in a file that was not understood, or a file that could not be read.
struct Problem {
  std::string file;  // path as the project names it, or the full path
  long line = 0;     // from 1; 0: the whole file
  std::string reason;
};

// The code page is one for the whole program (runtime::SetAnsiCodePage): opening sets it to what was chosen or guessed.
struct Options {
  int code_page = 0;  // 0: guessed from the fonts of the forms and the names of files, else 1252
};

// A project made from texts, for tests: modules as they would stand in their files.
struct SourceFile {
  std::string path;  // "Module1.bas"; relative to the project
  std::string text;  // whole file, CR LF or LF
};

class Environment : public host::VBE, public std::enable_shared_from_this<Environment> {
 public:
  // Everything is read and written through [files]; the clipboard is what PasteFace takes its picture from.
  static std::shared_ptr<Environment> Create(host::Files& files, host::Clipboard* clipboard = nullptr,
                                             Options options = {});

  // Opens a .vbp or a .vbg and makes its (startup) project active. What cannot be understood is left out and listed in
  // Problems(); throws host::Error only when [path] itself cannot be read, is no project, or is open here already.
  virtual void Open(const std::string& path) = 0;
  // Adds a project from the text of its .vbp; modules are looked for in [sources] first. Its FileName is [path], or
  // empty.
  virtual void OpenFromTexts(const std::string& path, const std::string& vbp,
                             const std::vector<SourceFile>& sources) = 0;
  // The commonest test project: one of these modules, kinds by their extensions. Its FileName is "C:\Test\<name>.vbp".
  virtual void OpenFromModules(const std::string& name, const std::vector<SourceFile>& sources) = 0;

  virtual const std::vector<Problem>& Problems() const = 0;
  virtual int CodePage() const = 0;
  virtual std::vector<std::shared_ptr<Project>> Projects() const = 0;

  // Saving. See project.h for each file. SaveAll writes what was edited, and nothing else.
  virtual bool IsDirty() const = 0;
  virtual std::vector<Problem> SaveAll() = 0;  // one entry for each file that could not be written, with the reason

  // What a user does.
  virtual void SelectComponent(const host::Ref<host::VBComponent>& component) = 0;  // Nothing: none
  virtual void ActivateProject(const std::shared_ptr<Project>& project) = 0;
  virtual void EnterRunMode() = 0;  // tells VBBuildEvents
  virtual bool OffersBuildEvents() const = 0;
  virtual void SetOffersBuildEvents(bool value) = 0;
  virtual CommandBarModel& Bars() = 0;
  virtual void Observe(Observer* observer) = 0;  // one; null ends it

  ~Environment() override = default;
};

}  // namespace corvane::environment
