// Observer: what the desk is told when the add-in or the user changes what is open.
#pragma once

#include <memory>
#include <string>

#include "host/vbe.h"

namespace corvane::environment {

class Module;

class Observer {
 public:
  virtual ~Observer() = default;
  // Lines of a module were replaced: [removed] lines from [start] by [inserted] new ones.
  virtual void LinesChanged(Module&, long /*start*/, long /*removed*/, long /*inserted*/) {}
  virtual void PaneShown(Module&) {}
  virtual void PaneClosed(Module&) {}
  virtual void SelectionSet(Module&) {}
  virtual void DesignerShown(Module&, bool /*visible*/) {}
  virtual void DesignerFocused(Module&) {}
  virtual void DesignerChanged(Module&) {}  // a control or property
  // After the notices of its lines: it was taken from the disk, its designer is a new one.
  virtual void ModuleReadAgain(Module&) {}
  virtual void ComponentsChanged() {}               // added, removed, renamed, saved under another name
  virtual void ImmediateChanged(bool /*shown*/) {}  // shown and focused, or closed
  virtual void MainWindowFocused() {}
  virtual void CommandBarsChanged() {}
  virtual void DirtyChanged() {}
  virtual void ProblemsChanged() {}  // in the midst of whatever found or mended one
};

}  // namespace corvane::environment
