// VBProject and VBComponent of the environment.
#include "com/collection.h"

namespace corvane::com {

namespace {

class WrappedComponent : public host::VBComponent, public Wrapped {
 public:
  using Wrapped::Wrapped;
  std::string Name() override { return object_.Get(L"Name").ToText(); }
  void SetName(const std::string& name) override { object_.Put(L"Name", name); }
  host::ComponentType Type() override { return static_cast<host::ComponentType>(object_.Get(L"Type").ToLong()); }
  host::Ref<host::CodeModule> CodeModule() override {
    return WrapExisting<host::CodeModule>(object_.Get(L"CodeModule"));
  }
  host::Ref<host::VBForm> Designer() override { return Wrap<host::VBForm>(object_.Get(L"Designer")); }
  std::string DesignerID() override { return object_.Get(L"DesignerID").ToText(); }
  bool HasOpenDesigner() override { return object_.Get(L"HasOpenDesigner").ToBool(); }
  host::Ref<host::Window> DesignerWindow() override {
    return WrapExisting<host::Window>(object_.Get(L"DesignerWindow"));
  }
  host::Ref<host::Properties> Properties() override {
    return WrapExisting<host::Properties>(object_.Get(L"Properties"));
  }
  long FileCount() override { return object_.Get(L"FileCount").ToLong(); }
  std::string FileNames(long index) override { return object_.Get(L"FileNames", index).ToText(); }
  void SaveAs(const std::string& path) override { object_.Call(L"SaveAs", path); }
  host::Ref<host::VBE> VBE() override { return WrapExisting<host::VBE>(object_.Get(L"VBE")); }
};

class WrappedComponents : public WrappedCollection<host::VBComponents, host::VBComponent> {
 public:
  using WrappedCollection::WrappedCollection;
  host::Ref<host::VBComponent> Add(host::ComponentType type) override {
    return WrapExisting<host::VBComponent>(object_.Get(L"Add", static_cast<long>(type)));
  }
  host::Ref<host::VBComponent> AddFile(const std::string& path) override {
    return WrapExisting<host::VBComponent>(object_.Get(L"AddFile", path));
  }
  void Remove(const host::Ref<host::VBComponent>& component) override { object_.Call(L"Remove", Argument(component)); }
  host::Ref<host::VBE> VBE() override { return WrapExisting<host::VBE>(object_.Get(L"VBE")); }
};

class WrappedProject : public host::VBProject, public Wrapped {
 public:
  using Wrapped::Wrapped;
  std::string Name() override { return object_.Get(L"Name").ToText(); }
  std::string FileName() override { return object_.Get(L"FileName").ToText(); }
  host::Ref<host::VBComponents> VBComponents() override {
    return WrapExisting<host::VBComponents>(object_.Get(L"VBComponents"));
  }
  void AddToolboxProgID(const std::string& prog_id, const std::string& file) override {
    file.empty() ? object_.Call(L"AddToolboxProgID", prog_id) : object_.Call(L"AddToolboxProgID", prog_id, file);
  }
};

class WrappedProjects : public WrappedCollection<host::VBProjects, host::VBProject> {
 public:
  using WrappedCollection::WrappedCollection;
  void AddFromFile(const std::string& path) override { object_.Call(L"AddFromFile", path); }
};

}  // namespace

template <>
host::Ref<host::VBComponent> Wrap(const Value& value) {
  return MakeWrapped<WrappedComponent>(value);
}

template <>
host::Ref<host::VBComponents> Wrap(const Value& value) {
  return MakeWrapped<WrappedComponents>(value);
}

template <>
host::Ref<host::VBProject> Wrap(const Value& value) {
  return MakeWrapped<WrappedProject>(value);
}

template <>
host::Ref<host::VBProjects> Wrap(const Value& value) {
  return MakeWrapped<WrappedProjects>(value);
}

}  // namespace corvane::com
