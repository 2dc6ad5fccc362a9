// The designer of a form, its controls and their properties.
#include "com/collection.h"
#include "com/texts.h"

namespace corvane::com {

namespace {

class WrappedProperty : public host::Property, public Wrapped {
 public:
  using Wrapped::Wrapped;
  std::string Name() override { return object_.Get(L"name").ToText(); }
  host::Variant Value() override { return ToVariant(object_.Get(L"Value")); }
  void SetValue(const host::Variant& value) override { object_.Put(L"Value", FromVariant(value)); }
  long NumIndices() override { return object_.Get(L"NumIndices").ToLong(); }
  host::Variant IndexedValue(long index) override { return ToVariant(object_.Get(L"IndexedValue", index)); }
  void SetIndexedValue(long index, const host::Variant& value) override {
    object_.Put(L"IndexedValue", FromVariant(value), index);
  }
  host::Variant Object() override { return ToVariant(object_.Get(L"Object")); }
  void SetObject(const host::Variant& object) override {
    const bool nothing = std::holds_alternative<std::monostate>(object);
    object_.Put(L"Object", nothing ? Argument(host::Ref<runtime::Object>()) : FromVariant(object));
  }
};

// An object of a property: a collection of properties, or whatever members it has.
class WrappedProperties : public WrappedCollection<host::Properties, host::Property>, public host::LateBound {
 public:
  using WrappedCollection::WrappedCollection;
  host::Variant Call(const std::string& member, const std::vector<host::Variant>& arguments) override {
    std::vector<com::Value> values;
    for (const host::Variant& argument : arguments)
      values.push_back(std::holds_alternative<std::monostate>(argument) ? com::Value(Missing())
                                                                        : FromVariant(argument));
    return ToVariant(object_.GetNamed(ToWide(member), values));
  }
};

class WrappedControlObject : public host::ControlObject, public Wrapped {
 public:
  WrappedControlObject(ComPointer<IDispatch> object, ComPointer<IDispatch> control)
      : Wrapped(std::move(object)), control_(std::move(control)) {}

  host::Ref<host::VBControl> Container() override {
    const com::Value container = object_.Get(L"Container");
    const ComPointer<IDispatch> object = container.ToObject();
    if (!object) return nullptr;
    if (Dispatch(object).Has(L"ClassName")) return Wrap<host::VBControl>(container);
    return OfName(Dispatch(object));
  }

 private:
  // A control that is running in its designer: the one of its name, and of its index in an array, among the designer's
  // own. A form is none of them.
  host::Ref<host::VBControl> OfName(Dispatch running) {
    host::Ref<host::VBControl> found;
    host::PassOverErrors([&] {
      Dispatch all(control_.Get(L"Collection").ToObject());
      if (!all.Object()) return;
      const com::Value name = running.Get(L"Name");
      const long index = IndexOf(running);
      found = Wrap<host::VBControl>(index < 0 ? all.Get(L"Item", name) : all.Get(L"Item", name, index));
    });
    return found;
  }
  // Below nought for a control of no array, which fails to tell any.
  static long IndexOf(Dispatch& running) {
    long index = -1;
    host::PassOverErrors([&] {
      const com::Value told = running.Get(L"Index");
      if (told.Get().vt != VT_EMPTY) index = told.ToLong();
    });
    return index;
  }
  Dispatch control_;
};

class WrappedControl : public host::VBControl, public Wrapped {
 public:
  using Wrapped::Wrapped;
  std::string ClassName() override { return object_.Get(L"ClassName").ToText(); }
  std::string ProgId() override { return object_.Get(L"ProgId").ToText(); }
  host::Ref<host::Properties> Properties() override {
    return WrapExisting<host::Properties>(object_.Get(L"Properties"));
  }
  host::Ref<host::ControlObject> ControlObject() override {
    ComPointer<IDispatch> object = object_.Get(L"ControlObject").ToObject();
    if (!object) throw host::Error(runtime::kObjectNotSet);
    return std::make_shared<WrappedControlObject>(std::move(object), ComPointer(Dispatched()));
  }
};

class WrappedControls : public WrappedCollection<host::VBControls, host::VBControl> {
 public:
  using WrappedCollection::Item;
  using WrappedCollection::WrappedCollection;
  host::Ref<host::VBControl> Item(const std::string& name, long index) override {
    return WrapExisting<host::VBControl>(object_.Get(L"Item", name, index));
  }
  host::Ref<host::VBControl> Add(const std::string& prog_id, const host::Ref<host::VBControl>& container) override {
    return WrapExisting<host::VBControl>(object_.Get(L"Add", prog_id, Argument(container)));
  }
  void Remove(const host::Ref<host::VBControl>& control) override { object_.Call(L"Remove", Argument(control)); }
};

class WrappedForm : public host::VBForm, public Wrapped {
 public:
  using Wrapped::Wrapped;
  host::Ref<host::VBControls> VBControls() override {
    return WrapExisting<host::VBControls>(object_.Get(L"VBControls"));
  }
  host::Ref<host::SelectedVBControls> SelectedVBControls() override {
    return WrapExisting<host::SelectedVBControls>(object_.Get(L"SelectedVBControls"));
  }
};

}  // namespace

template <>
host::Ref<host::Property> Wrap(const Value& value) {
  return MakeWrapped<WrappedProperty>(value);
}

template <>
host::Ref<host::Properties> Wrap(const Value& value) {
  return MakeWrapped<WrappedProperties>(value);
}

template <>
host::Ref<host::VBControl> Wrap(const Value& value) {
  return MakeWrapped<WrappedControl>(value);
}

template <>
host::Ref<host::VBControls> Wrap(const Value& value) {
  return MakeWrapped<WrappedControls>(value);
}

template <>
host::Ref<host::SelectedVBControls> Wrap(const Value& value) {
  return MakeWrapped<WrappedCollection<host::SelectedVBControls, host::VBControl>>(value);
}

template <>
host::Ref<host::VBForm> Wrap(const Value& value) {
  return MakeWrapped<WrappedForm>(value);
}

}  // namespace corvane::com
