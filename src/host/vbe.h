// VBE: the root of the environment's object model. All logic reaches the project from here and keeps nothing else.
#pragma once

#include "host/command_bars.h"
#include "host/project.h"

namespace corvane::host {

class Window {
 public:
  virtual ~Window() = default;
  virtual std::string Caption() = 0;
  virtual void SetFocus() = 0;
  virtual void Close() = 0;
  virtual void SetVisible(bool visible) = 0;
};

// Item takes a position or a caption ("Immediate").
class Windows : public Collection<Window> {};

class VBE {
 public:
  virtual ~VBE() = default;
  virtual Ref<host::VBProjects> VBProjects() = 0;
  virtual Ref<VBProject> ActiveVBProject() = 0;        // Nothing without a project
  virtual Ref<VBComponent> SelectedVBComponent() = 0;  // Nothing when a folder or the project itself is selected
  virtual Ref<CodePane> ActiveCodePane() = 0;          // Nothing when no code pane is open
  virtual Ref<host::CodePanes> CodePanes() = 0;
  virtual Ref<host::Windows> Windows() = 0;
  virtual Ref<Window> MainWindow() = 0;
  virtual Ref<host::CommandBars> CommandBars() = 0;
  virtual Ref<host::Events> Events() = 0;
};

}  // namespace corvane::host
