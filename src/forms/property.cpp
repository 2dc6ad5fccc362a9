#include "forms/property.h"

#include <algorithm>
#include <array>

#include "runtime/strings.h"

namespace corvane::forms {

namespace {

// In the order of the enumeration.
constexpr std::array<std::string_view, static_cast<size_t>(Property::ZOrder) + 1> kNames = {"All",
                                                                                            "Alignment",
                                                                                            "Appearance",
                                                                                            "AutoRedraw",
                                                                                            "AutoSize",
                                                                                            "BackColor",
                                                                                            "BackStyle",
                                                                                            "BorderColor",
                                                                                            "BorderStyle",
                                                                                            "BorderWidth",
                                                                                            "Buttons",
                                                                                            "Cancel",
                                                                                            "Caption",
                                                                                            "CausesValidation",
                                                                                            "Checked",
                                                                                            "Columns",
                                                                                            "Container",
                                                                                            "Default",
                                                                                            "DrawStyle",
                                                                                            "Enabled",
                                                                                            "FillColor",
                                                                                            "FillStyle",
                                                                                            "Focus",
                                                                                            "Font",
                                                                                            "FontBold",
                                                                                            "FontItalic",
                                                                                            "FontName",
                                                                                            "FontSize",
                                                                                            "FontStrikethru",
                                                                                            "FontUnderline",
                                                                                            "ForeColor",
                                                                                            "Height",
                                                                                            "HideSelection",
                                                                                            "Icon",
                                                                                            "Image",
                                                                                            "Index",
                                                                                            "Interval",
                                                                                            "ItemData",
                                                                                            "KeyPreview",
                                                                                            "LargeChange",
                                                                                            "Left",
                                                                                            "List",
                                                                                            "ListCount",
                                                                                            "ListIndex",
                                                                                            "Locked",
                                                                                            "Max",
                                                                                            "MaxLength",
                                                                                            "Min",
                                                                                            "MousePointer",
                                                                                            "MultiLine",
                                                                                            "MultiSelect",
                                                                                            "Name",
                                                                                            "NewIndex",
                                                                                            "PasswordChar",
                                                                                            "Picture",
                                                                                            "ScaleHeight",
                                                                                            "ScaleWidth",
                                                                                            "ScrollBars",
                                                                                            "Selected",
                                                                                            "SelLength",
                                                                                            "SelStart",
                                                                                            "SelText",
                                                                                            "Shape",
                                                                                            "Shortcut",
                                                                                            "SmallChange",
                                                                                            "Sorted",
                                                                                            "Stretch",
                                                                                            "Style",
                                                                                            "TabIndex",
                                                                                            "TabStop",
                                                                                            "Tag",
                                                                                            "Text",
                                                                                            "ToolTipText",
                                                                                            "Top",
                                                                                            "TopIndex",
                                                                                            "UseMnemonic",
                                                                                            "Value",
                                                                                            "Visible",
                                                                                            "Width",
                                                                                            "WindowState",
                                                                                            "WordWrap",
                                                                                            "X1",
                                                                                            "X2",
                                                                                            "Y1",
                                                                                            "Y2",
                                                                                            "ZOrder"};
static_assert(!kNames.back().empty());

}  // namespace

std::string_view NameOf(Property property) {
  return kNames[static_cast<size_t>(property)];
}

Property PropertyNamed(std::string_view name) {
  const std::string wanted = runtime::UCase(name);
  const auto found =
      std::find_if(kNames.begin(), kNames.end(), [&](std::string_view each) { return runtime::UCase(each) == wanted; });
  return found == kNames.end() ? Property::All : static_cast<Property>(found - kNames.begin());
}

}  // namespace corvane::forms
