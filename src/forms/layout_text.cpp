#include "forms/layout_text.h"

#include <cstdio>

#include "forms/controls.h"

namespace corvane::forms {

namespace {

std::string Number(Twips value) {
  char text[32];
  std::snprintf(text, sizeof text, " %g", static_cast<double>(value));
  return text;
}

std::string Quoted(const std::string& text) {
  std::string quoted = " \"";
  for (char each : text) {
    if (each == '\r') continue;
    if (each == '\n') {
      quoted += "\\n";
    } else {
      quoted += each;
    }
  }
  return quoted + "\"";
}

std::string PlaceText(const Rect& place) {
  return Number(place.left) + Number(place.top) + Number(place.width) + Number(place.height);
}

// The caption, or the text of a kind that has none; nothing for kinds with neither.
std::string CaptionText(const Control& control) {
  std::string text;
  for (Property property : {Property::Caption, Property::Text}) {
    if (control.Kind() == ControlKind::ListBox) break;
    if (runtime::PassOverErrors([&] { text = Quoted(runtime::ToText(control.Get(property))); })) return text;
  }
  return text;
}

std::string HeadText(const Control& control) {
  std::string text = std::string(NameOf(control.Kind())) + " " + control.Name();
  if (control.Index() >= 0) text += " (" + std::to_string(control.Index()) + ")";
  return text;
}

std::string StateText(const Control& control) {
  return std::string(control.Visible() ? "" : " hidden") + (control.Enabled() ? "" : " disabled");
}

constexpr std::string_view kButtonStyles[] = {"", " check", " group", " separator", " placeholder", " drop-down"};

void WriteButtons(const Toolbar& bar, const std::string& indent, std::string& text) {
  for (int position = 1; position <= bar.Count(); ++position) {
    const ToolButton& button = bar.Button(position);
    text += indent + "Button " + std::to_string(position) + " " + button.Key + Quoted(button.Caption) +
            Quoted(button.ToolTipText);
    text += kButtonStyles[static_cast<int>(button.Style)];
    if (button.Image > 0) text += " image " + std::to_string(button.Image);
    text += std::string(button.Visible ? "" : " hidden") + (button.Enabled ? "" : " disabled") + "\n";
  }
}

void WriteControls(const Container& container, const std::string& indent, std::string& text) {
  for (const Control* control : container.Controls()) {
    text += indent + HeadText(*control) + PlaceText(control->Place()) + CaptionText(*control) + StateText(*control);
    if (control->CanTakeFocus()) text += " tab " + std::to_string(control->TabIndex());
    text += "\n";
    if (const auto* bar = dynamic_cast<const Toolbar*>(control)) WriteButtons(*bar, indent + "  ", text);
    if (const auto* inner = dynamic_cast<const Container*>(control)) WriteControls(*inner, indent + "  ", text);
  }
}

void WriteMenus(const std::vector<Menu*>& menus, const std::string& indent, std::string& text) {
  for (const Menu* menu : menus) {
    if (menu->IsOfControl()) continue;
    text += indent + HeadText(*menu) + Quoted(menu->Caption()) + StateText(*menu);
    if (menu->Checked()) text += " checked";
    if (!menu->Shortcut().empty()) text += " " + menu->Shortcut();
    text += "\n";
    WriteMenus(menu->Items(), indent + "  ", text);
  }
}

}  // namespace

std::string LayoutText(const Form& form) {
  std::string text = "Form " + form.Name() + PlaceText(form.Place()) + Quoted(form.Caption()) + "\n";
  WriteControls(form, "", text);
  WriteMenus(form.Menus(), "", text);
  return text;
}

}  // namespace corvane::forms
