// Designer: the design-time side of a component: its designer part and binary sibling (.frx), read at the first need,
// as the host's VBForm and Properties, edited and written back in the environment's own way.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "environment/designer_part.h"
#include "host/project.h"

namespace corvane::environment {

// What a designer needs of its component.
class DesignerOwner {
 public:
  virtual ~DesignerOwner() = default;
  virtual std::string ComponentName() = 0;
  // The Name property was set. Throws Error 32813 for a name in use. The owner calls Designer::SetRootName in turn.
  virtual void RenameComponent(const std::string& name) = 0;
  // What stands right of "=" in the file's `Attribute <name> = ...` line; empty if there is none.
  virtual std::string ModuleAttribute(const std::string& name) = 0;
  // The bytes of a file in the component's folder. Throws Error 53, 70, 75, 76.
  virtual std::string ReadSibling(const std::string& name) = 0;
  // The name that a binary sibling gets when there was none: "Form1.frx", "UserControl1.ctx".
  virtual std::string NewSiblingName() = 0;
  // A control or a property was changed.
  virtual void DesignerChanged() = 0;
};

// The binary file beside the component's own.
struct DesignerSibling {
  std::string name;
  std::string bytes;  // as it would be written now
  bool changed = false;
};

class DesignerState;

class Designer {
 public:
  // [text] is the designer part (see DesignerPartLength); empty for a standard module. [owner] outlives the designer or
  // calls Detach(); objects handed out before answer Error 91 from then on.
  Designer(host::ComponentType kind, std::string text, DesignerOwner& owner);
  ~Designer();
  void Detach();

  // Nothing for standard modules, class modules and related documents.
  host::Ref<host::VBForm> Form();
  host::Ref<host::Properties> Properties();
  // What was not understood, by line; reads the part and looks at its references.
  const std::vector<DesignerProblem>& Problems();

  // The part as it would be written now; the text it was made from as long as nothing was edited.
  std::string Write() const;
  bool IsDirty() const;
  void SetClean();  // after a save
  // The binary siblings that were read or made. Write the changed ones BEFORE the component's own file: they only grow,
  // so that the old file stays right whatever happens between the two.
  std::vector<DesignerSibling> Siblings();
  // For SaveAs: the part's references name [new_name] in place of the sibling it had; a sibling that was not read yet
  // is. Nothing happens without one. Throws as ReadSibling, or Error 75 where the part was not understood.
  void MoveSibling(const std::string& new_name);
  // The component was renamed: the root block's name. Error 75 where the part was not understood.
  void SetRootName(const std::string& name);
  // The user selected these controls, by their positions in VBControls, from 1.
  void Select(const std::vector<long>& positions);

 private:
  std::shared_ptr<DesignerState> state_;
};

// The designer part (CR LF) of a component that the environment just made; empty for a standard module.
std::string NewDesignerText(host::ComponentType kind, const std::string& name);

}  // namespace corvane::environment
