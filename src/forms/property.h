// Property: the names of what controls and forms hold, for change notices and for access by name.
#pragma once

#include <string_view>

namespace corvane::forms {

enum class Property {
  All,  // everything: a control was just made
  Alignment, Appearance, AutoRedraw, AutoSize, BackColor, BackStyle, BorderColor, BorderStyle, BorderWidth, Buttons,
  Cancel, Caption, Checked, Columns, Default, DrawStyle, Enabled, FillColor, FillStyle, Focus, Font, ForeColor, Height,
  HideSelection, Icon, Image, Index, Interval, ItemData, KeyPreview, LargeChange, Left, List, ListIndex, Locked, Max,
  MaxLength, Min, MousePointer, MultiLine, MultiSelect, Name, PasswordChar, Picture, ScrollBars, Selected, SelLength,
  SelStart, Shape, Shortcut, SmallChange, Sorted, Stretch, Style, TabIndex, TabStop, Tag, Text, ToolTipText, Top,
  TopIndex, Value, Visible, Width, WindowState, WordWrap, X1, X2, Y1, Y2, ZOrder,
};

// "ToolTipText" <-> Property::ToolTipText, without case. All for a name that is not in the list.
std::string_view NameOf(Property property);
Property PropertyNamed(std::string_view name);

}  // namespace corvane::forms
