// VBProject and VBComponent: what is open in the environment.
#pragma once

#include "host/base.h"
#include "host/code_module.h"
#include "host/designer.h"

namespace corvane::host {

class VBE;
class Window;

// Values of vbext_ComponentType in use.
enum class ComponentType : long {
  StdModule = 1,
  ClassModule = 2,
  VBForm = 5,
  VBMDIForm = 6,
  PropPage = 7,
  UserControl = 8,
  DocObject = 9,
  RelatedDocument = 10,
  ActiveXDesigner = 11,
};

class VBComponent {
 public:
  virtual ~VBComponent() = default;
  virtual std::string Name() = 0;
  virtual void SetName(const std::string& name) = 0;
  virtual ComponentType Type() = 0;
  // Kind 10 has none: asking is Error 438.
  virtual Ref<host::CodeModule> CodeModule() = 0;
  // Nothing for standard and class modules.
  virtual Ref<host::VBForm> Designer() = 0;
  // Class of the designer ("MSDataReportLib.DataReport"); empty text where the environment itself is the designer.
  virtual std::string DesignerID() = 0;
  virtual bool HasOpenDesigner() = 0;
  // Opens the designer's window where it was closed. Without a designer: Error 438.
  virtual Ref<host::Window> DesignerWindow() = 0;
  virtual Ref<host::Properties> Properties() = 0;
  virtual long FileCount() = 0;
  // The source file is the first; empty text while it was never saved.
  virtual std::string FileNames(long index) = 0;
  virtual void SaveAs(const std::string& path) = 0;
  virtual Ref<host::VBE> VBE() = 0;
};

class VBComponents : public Collection<VBComponent> {
 public:
  virtual Ref<VBComponent> Add(ComponentType type) = 0;
  // Kind by extension. A name in use is Error 32813.
  virtual Ref<VBComponent> AddFile(const std::string& path) = 0;
  virtual void Remove(const Ref<VBComponent>& component) = 0;
  virtual Ref<host::VBE> VBE() = 0;
};

class VBProject {
 public:
  virtual ~VBProject() = default;
  virtual std::string Name() = 0;
  // Full path; empty text while it was never saved.
  virtual std::string FileName() = 0;
  virtual Ref<host::VBComponents> VBComponents() = 0;
  // Puts a class of controls into the toolbox, with the library in [file] where that is not known. Error 429 for one
  // that cannot be had.
  virtual void AddToolboxProgID(const std::string& prog_id, const std::string& file = {}) = 0;
};

class VBProjects : public Collection<VBProject> {
 public:
  // Opens the project beside those that are open.
  virtual void AddFromFile(const std::string& path) = 0;
};

}  // namespace corvane::host
