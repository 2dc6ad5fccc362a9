// Property: the names of what controls and forms hold, for change notices and for access by name.
#pragma once

#include <string_view>

namespace corvane::forms {

enum class Property {
  All,  // everything: a control was just made
  Alignment, Appearance, AutoRedraw, AutoSize, BackColor, BackStyle, BorderColor, BorderStyle, BorderWidth, Buttons,
  Cancel, Caption, CausesValidation, Checked, Columns, Container, Default, DrawStyle, Enabled, FillColor, FillStyle,
  Focus, Font, FontBold, FontItalic, FontName, FontSize, FontStrikethru, FontUnderline, ForeColor, Height,
  HideSelection, Icon, Image, Index, Interval, ItemData, KeyPreview, LargeChange, Left, List, ListCount, ListIndex,
  Locked, Max, MaxLength, Min, MousePointer, MultiLine, MultiSelect, Name, NewIndex, PasswordChar, Picture,
  ScaleHeight, ScaleWidth, ScrollBars, Selected, SelLength, SelStart, SelText, Shape, Shortcut, SmallChange, Sorted,
  Stretch, Style, TabIndex, TabStop, Tag, Text, ToolTipText, Top, TopIndex, UseMnemonic, Value, Visible, Width,
  WindowState, WordWrap, X1, X2, Y1, Y2, ZOrder,
};

// "ToolTipText" <-> Property::ToolTipText, without case. All for a name that is not in the list.
std::string_view NameOf(Property property);
Property PropertyNamed(std::string_view name);

}  // namespace corvane::forms
