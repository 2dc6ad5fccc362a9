#include <algorithm>
#include <iterator>
#include <string>

#include "forms/control.h"
#include "runtime/strings.h"

namespace corvane::forms {

namespace {

struct KindName {
  ControlKind kind;
  std::string_view name, library;
};

// In the order of the enumeration.
constexpr KindName kKinds[] = {
    {ControlKind::Form, "Form", "VB"},
    {ControlKind::Label, "Label", "VB"},
    {ControlKind::TextBox, "TextBox", "VB"},
    {ControlKind::CommandButton, "CommandButton", "VB"},
    {ControlKind::CheckBox, "CheckBox", "VB"},
    {ControlKind::OptionButton, "OptionButton", "VB"},
    {ControlKind::Frame, "Frame", "VB"},
    {ControlKind::ListBox, "ListBox", "VB"},
    {ControlKind::ComboBox, "ComboBox", "VB"},
    {ControlKind::PictureBox, "PictureBox", "VB"},
    {ControlKind::Image, "Image", "VB"},
    {ControlKind::Line, "Line", "VB"},
    {ControlKind::Shape, "Shape", "VB"},
    {ControlKind::HScrollBar, "HScrollBar", "VB"},
    {ControlKind::VScrollBar, "VScrollBar", "VB"},
    {ControlKind::Timer, "Timer", "VB"},
    {ControlKind::Toolbar, "Toolbar", "MSComctlLib"},
    {ControlKind::ImageList, "ImageList", "MSComctlLib"},
    {ControlKind::Menu, "Menu", "VB"},
    {ControlKind::UserControl, "UserControl", "VB"},
};
static_assert(std::size(kKinds) == static_cast<size_t>(ControlKind::UserControl) + 1);

bool Names(const KindName& kind, const std::string& upper) {
  const std::string name = runtime::UCase(kind.name);
  return upper == name || upper == runtime::UCase(kind.library) + "." + name;
}

}  // namespace

std::string_view NameOf(ControlKind kind) {
  return kKinds[static_cast<size_t>(kind)].name;
}

ControlKind KindNamed(std::string_view name) {
  const std::string upper = runtime::UCase(name);
  const auto* found =
      std::find_if(std::begin(kKinds), std::end(kKinds), [&](const KindName& kind) { return Names(kind, upper); });
  if (found == std::end(kKinds)) throw Error(runtime::kInvalidPropertyValue);
  return found->kind;
}

}  // namespace corvane::forms
