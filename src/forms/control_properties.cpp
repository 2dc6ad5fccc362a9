// Properties by name that most kinds share.
#include <initializer_list>

#include "forms/form.h"
#include "forms/property_table.h"

namespace corvane::forms {

namespace {

template <auto Member>
constexpr PropertyEntry<Control> FontEntry(Property property) {
  using Value = std::decay_t<decltype(forms::Font{}.*Member)>;
  return {property, [](const Control& control) { return ToVariant<Value>(control.Font().*Member); },
          [](Control& control, const Variant& value) {
            forms::Font font = control.Font();
            font.*Member = FromVariant<Value>(value);
            control.SetFont(font);
          }};
}

std::string NameText(const Control& control) {
  return control.Name();
}

constexpr PropertyEntry<Control> kCommon[] = {
    {Property::Name, [](const Control& control) -> Variant { return NameText(control); }, nullptr},
    ReadOnly<Control, &Control::Index>(Property::Index),
    Entry<Control, &Control::Left, &Control::SetLeft>(Property::Left),
    Entry<Control, &Control::Top, &Control::SetTop>(Property::Top),
    Entry<Control, &Control::Width, &Control::SetWidth>(Property::Width),
    Entry<Control, &Control::Height, &Control::SetHeight>(Property::Height),
    Entry<Control, &Control::Visible, &Control::SetVisible>(Property::Visible),
    Entry<Control, &Control::Enabled, &Control::SetEnabled>(Property::Enabled),
    Entry<Control, &Control::Tag, &Control::SetTag>(Property::Tag),
    Entry<Control, &Control::ToolTipText, &Control::SetToolTipText>(Property::ToolTipText),
    Entry<Control, &Control::TabIndex, &Control::SetTabIndex>(Property::TabIndex),
    Entry<Control, &Control::TabStop, &Control::SetTabStop>(Property::TabStop),
    Entry<Control, &Control::CausesValidation, &Control::SetCausesValidation>(Property::CausesValidation),
    Entry<Control, &Control::BackColor, &Control::SetBackColor>(Property::BackColor),
    Entry<Control, &Control::ForeColor, &Control::SetForeColor>(Property::ForeColor),
    Entry<Control, &Control::MousePointer, &Control::SetMousePointer>(Property::MousePointer),
    FontEntry<&Font::Name>(Property::FontName),
    FontEntry<&Font::Size>(Property::FontSize),
    FontEntry<&Font::Bold>(Property::FontBold),
    FontEntry<&Font::Italic>(Property::FontItalic),
    FontEntry<&Font::Underline>(Property::FontUnderline),
    FontEntry<&Font::Strikethrough>(Property::FontStrikethru),
};

bool IsOneOf(Property property, std::initializer_list<Property> list) {
  return std::find(list.begin(), list.end(), property) != list.end();
}

bool IsFont(Property property) {
  return IsOneOf(property, {Property::FontName, Property::FontSize, Property::FontBold, Property::FontItalic,
                            Property::FontUnderline, Property::FontStrikethru});
}

bool IsIdentity(Property property) {
  return IsOneOf(property, {Property::Name, Property::Index, Property::Tag});
}

bool IsPlace(Property property) {
  return IsOneOf(property, {Property::Left, Property::Top, Property::Width, Property::Height});
}

bool IsFocus(Property property) {
  return IsOneOf(property, {Property::TabStop, Property::CausesValidation});
}

// What a kind of control has of the table above.
bool Has(ControlKind kind, Property property) {
  switch (kind) {
    case ControlKind::Timer:
      return IsIdentity(property) || IsOneOf(property, {Property::Left, Property::Top, Property::Enabled});
    case ControlKind::ImageList:
      return IsIdentity(property) || IsOneOf(property, {Property::Left, Property::Top});
    case ControlKind::Menu:
      return IsIdentity(property) || IsOneOf(property, {Property::Visible, Property::Enabled});
    case ControlKind::Line:
      return IsIdentity(property) || property == Property::Visible;
    case ControlKind::Shape:
      return IsIdentity(property) || IsPlace(property) || IsOneOf(property, {Property::Visible, Property::BackColor});
    case ControlKind::Image:
      return !IsFocus(property) && !IsFont(property) &&
             !IsOneOf(property, {Property::BackColor, Property::ForeColor, Property::TabIndex});
    case ControlKind::HScrollBar:
    case ControlKind::VScrollBar:
      return !IsFont(property) && !IsOneOf(property, {Property::BackColor, Property::ForeColor, Property::ToolTipText});
    case ControlKind::Label:
    case ControlKind::Frame:
      return !IsFocus(property);
    case ControlKind::CommandButton:
      return property != Property::ForeColor;
    default:
      return true;
  }
}

}  // namespace

Variant Control::Get(Property property) const {
  const auto* entry = FindEntry(kCommon, property);
  if (!entry || !Has(Kind(), property)) throw Error(runtime::kNoSuchMember);
  return entry->get(*this);
}

void Control::Set(Property property, const Variant& value) {
  const auto* entry = FindEntry(kCommon, property);
  if (!entry || !Has(Kind(), property)) throw Error(runtime::kNoSuchMember);
  if (!entry->set) throw Error(runtime::kPropertyReadOnly);
  entry->set(*this, value);
}

}  // namespace corvane::forms
