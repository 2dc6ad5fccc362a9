#include "script/ide_target.h"

#include "runtime/strings.h"
#include "script/function_table.h"
#include "script/numbers.h"

namespace corvane::script {

using host::Ref;

namespace {

constexpr char kElement = '!';

std::string TextOf(host::VBControl& control, const char* property) {
  return runtime::ToText(control.Properties()->Item(property)->Value());
}

// Its place in a control array; empty for a control of none.
std::string ElementIndex(host::VBControl& control) {
  std::string index;
  host::PassOverErrors([&] { index = TextOf(control, "Index"); });
  return NumberOf(index).value_or(-1) < 0 ? std::string() : index;
}

}  // namespace

bool IsMe(const std::string& name) {
  return name.empty() || runtime::UCase(name) == "ME";
}

IdeAddress AddressOf(const std::string& text) {
  const long dot = runtime::InStr(text, ".");
  if (dot < 2) return {{}, text};
  return {runtime::Left(text, dot - 1), runtime::Mid(text, dot + 1)};
}

std::string AddressNameOf(host::VBControl& control) {
  const std::string index = ElementIndex(control), name = TextOf(control, "Name");
  return index.empty() ? name : name + kElement + index;
}

Ref<host::VBControl> FindControl(host::VBControls& controls, const std::string& name) {
  Ref<host::VBControl> found;
  const size_t mark = name.find(kElement);
  host::PassOverErrors([&] {
    found = mark == std::string::npos ? controls.Item(name)
                                      : controls.Item(name.substr(0, mark), LongOf(name.substr(mark + 1)));
  });
  return found;
}

Ref<host::VBComponent> IdeTargets::Component(const std::string& name) const {
  if (IsMe(name)) return Selected();
  Ref<host::VBComponent> found;
  host::PassOverErrors([&] {
    if (const auto project = vbe_->ActiveVBProject()) found = project->VBComponents()->Item(name);
  });
  return found;
}

Ref<host::CodeModule> IdeTargets::Module(const std::string& name) const {
  Ref<host::CodeModule> module;
  const Ref<host::VBComponent> component = Component(name);
  if (component) host::PassOverErrors([&] { module = component->CodeModule(); });
  return module;
}

Ref<host::VBForm> IdeTargets::Designer(const std::string& name) const {
  Ref<host::VBForm> designer;
  const Ref<host::VBComponent> component = Component(name);
  if (component) host::PassOverErrors([&] { designer = component->Designer(); });
  return designer;
}

Ref<host::VBControl> IdeTargets::Control(const IdeAddress& address) const {
  const Ref<host::VBForm> designer = Designer(address.component);
  return designer ? FindControl(*designer->VBControls(), address.control) : nullptr;
}

Ref<host::Properties> IdeTargets::PropertiesAt(const std::string& text) const {
  const IdeAddress address = AddressOf(text);
  const bool whole_component = address.component.empty() && IsMe(address.control);
  if (!whole_component)
    if (const auto control = Control(address)) return control->Properties();
  if (!address.component.empty() && address.control.empty()) return nullptr;
  const Ref<host::VBComponent> component = Component(address.control);
  return component ? component->Properties() : nullptr;
}

}  // namespace corvane::script
