// VBE, the root, and the environment's windows.
#include "com/collection.h"

namespace corvane::com {

namespace {

class WrappedWindow : public host::Window, public Wrapped {
 public:
  using Wrapped::Wrapped;
  std::string Caption() override { return object_.Get(L"Caption").ToText(); }
  void SetFocus() override { object_.Call(L"SetFocus"); }
  void Close() override { object_.Call(L"Close"); }
  void SetVisible(bool visible) override { object_.Put(L"Visible", visible); }
};

class WrappedVBE : public host::VBE, public Wrapped {
 public:
  using Wrapped::Wrapped;
  host::Ref<host::VBProjects> VBProjects() override { return Member<host::VBProjects>(L"VBProjects"); }
  host::Ref<host::VBProject> ActiveVBProject() override { return MemberOrNothing<host::VBProject>(L"ActiveVBProject"); }
  host::Ref<host::VBComponent> SelectedVBComponent() override {
    return MemberOrNothing<host::VBComponent>(L"SelectedVBComponent");
  }
  host::Ref<host::CodePane> ActiveCodePane() override { return MemberOrNothing<host::CodePane>(L"ActiveCodePane"); }
  host::Ref<host::CodePanes> CodePanes() override { return Member<host::CodePanes>(L"CodePanes"); }
  host::Ref<host::Windows> Windows() override { return Member<host::Windows>(L"Windows"); }
  host::Ref<host::Window> MainWindow() override { return Member<host::Window>(L"MainWindow"); }
  host::Ref<host::CommandBars> CommandBars() override { return Member<host::CommandBars>(L"CommandBars"); }
  host::Ref<host::Events> Events() override { return Member<host::Events>(L"Events"); }

 private:
  template <class T>
  host::Ref<T> Member(const wchar_t* name) {
    return WrapExisting<T>(object_.Get(name));
  }
  template <class T>
  host::Ref<T> MemberOrNothing(const wchar_t* name) {
    return Wrap<T>(object_.Get(name));
  }
};

}  // namespace

template <>
host::Ref<host::VBE> Wrap(const Value& value) {
  return MakeWrapped<WrappedVBE>(value);
}

template <>
host::Ref<host::Window> Wrap(const Value& value) {
  return MakeWrapped<WrappedWindow>(value);
}

template <>
host::Ref<host::Windows> Wrap(const Value& value) {
  return MakeWrapped<WrappedCollection<host::Windows, host::Window>>(value);
}

}  // namespace corvane::com
