// The environment's objects as the host contract sees them, and back.
#pragma once

#include "com/dispatch.h"
#include "host/vbe.h"

namespace corvane::com {

// What every such object is made of.
class Wrapped {
 public:
  explicit Wrapped(ComPointer<IDispatch> object) : object_(std::move(object)) {}
  virtual ~Wrapped() = default;
  IDispatch* Dispatched() const { return object_.Object(); }

 protected:
  Dispatch object_;
};

// The object in [value] as the contract's [T]; Nothing stays Nothing. Error 424 for what is no object.
template <class T>
host::Ref<T> Wrap(const Value& value);

template <>
host::Ref<host::VBE> Wrap(const Value&);
template <>
host::Ref<host::Window> Wrap(const Value&);
template <>
host::Ref<host::Windows> Wrap(const Value&);
template <>
host::Ref<host::VBProject> Wrap(const Value&);
template <>
host::Ref<host::VBProjects> Wrap(const Value&);
template <>
host::Ref<host::VBComponent> Wrap(const Value&);
template <>
host::Ref<host::VBComponents> Wrap(const Value&);
template <>
host::Ref<host::CodeModule> Wrap(const Value&);
template <>
host::Ref<host::CodePane> Wrap(const Value&);
template <>
host::Ref<host::CodePanes> Wrap(const Value&);
template <>
host::Ref<host::VBForm> Wrap(const Value&);
template <>
host::Ref<host::VBControl> Wrap(const Value&);
template <>
host::Ref<host::VBControls> Wrap(const Value&);
template <>
host::Ref<host::SelectedVBControls> Wrap(const Value&);
template <>
host::Ref<host::Property> Wrap(const Value&);
template <>
host::Ref<host::Properties> Wrap(const Value&);
template <>
host::Ref<host::CommandBar> Wrap(const Value&);
template <>
host::Ref<host::CommandBars> Wrap(const Value&);
template <>
host::Ref<host::CommandBarControl> Wrap(const Value&);
template <>
host::Ref<host::CommandBarControls> Wrap(const Value&);
template <>
host::Ref<host::CommandBarEvents> Wrap(const Value&);
template <>
host::Ref<host::VBBuildEvents> Wrap(const Value&);
template <>
host::Ref<host::Events> Wrap(const Value&);

// The same for what an environment always has: Nothing is Error 91, as it would be at the first call of it.
template <class T>
host::Ref<T> WrapExisting(const Value& value) {
  host::Ref<T> object = Wrap<T>(value);
  if (!object) throw host::Error(runtime::kObjectNotSet);
  return object;
}

// How each of them is made: of the class that forwards to the object.
template <class Class>
std::shared_ptr<Class> MakeWrapped(const Value& value) {
  ComPointer<IDispatch> object = value.ToObject();
  return object ? std::make_shared<Class>(std::move(object)) : nullptr;
}

// An object as the argument of a call. Error 13 for one that is not of this environment.
template <class T>
Value Argument(const host::Ref<T>& object) {
  if (!object) return Value(static_cast<IDispatch*>(nullptr));
  const auto* wrapped = dynamic_cast<const Wrapped*>(object.get());
  if (!wrapped) throw host::Error(runtime::kTypeMismatch);
  return Value(wrapped->Dispatched());
}

}  // namespace corvane::com
