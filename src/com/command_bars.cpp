// The environment's command bars.
#include "com/collection.h"

namespace corvane::com {

namespace {

class WrappedBarControl : public host::CommandBarControl, public Wrapped {
 public:
  using Wrapped::Wrapped;
  std::string Caption() override { return object_.Get(L"Caption").ToText(); }
  void SetCaption(const std::string& caption) override { object_.Put(L"Caption", caption); }
  void SetVisible(bool visible) override { object_.Put(L"Visible", visible); }
  void SetState(long state) override { object_.Put(L"State", state); }
  void SetStyle(host::ButtonStyle style) override { object_.Put(L"Style", static_cast<long>(style)); }
  void PasteFace() override { object_.Call(L"PasteFace"); }
  void Delete() override { object_.Call(L"Delete"); }
};

class WrappedBarControls : public WrappedCollection<host::CommandBarControls, host::CommandBarControl> {
 public:
  using WrappedCollection::WrappedCollection;
  // Type, Id, Parameter, Before.
  host::Ref<host::CommandBarControl> Add(host::ControlType type, long before) override {
    const long kind = static_cast<long>(type);
    return WrapExisting<host::CommandBarControl>(before == 0 ? object_.Get(L"Add", kind)
                                                             : object_.Get(L"Add", kind, Missing(), Missing(), before));
  }
};

class WrappedBar : public host::CommandBar, public Wrapped {
 public:
  using Wrapped::Wrapped;
  std::string Name() override { return object_.Get(L"Name").ToText(); }
  host::Ref<host::CommandBarControls> Controls() override {
    return WrapExisting<host::CommandBarControls>(object_.Get(L"Controls"));
  }
};

}  // namespace

template <>
host::Ref<host::CommandBarControl> Wrap(const Value& value) {
  return MakeWrapped<WrappedBarControl>(value);
}

template <>
host::Ref<host::CommandBarControls> Wrap(const Value& value) {
  return MakeWrapped<WrappedBarControls>(value);
}

template <>
host::Ref<host::CommandBar> Wrap(const Value& value) {
  return MakeWrapped<WrappedBar>(value);
}

template <>
host::Ref<host::CommandBars> Wrap(const Value& value) {
  return MakeWrapped<WrappedCollection<host::CommandBars, host::CommandBar>>(value);
}

}  // namespace corvane::com
