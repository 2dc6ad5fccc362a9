#include "forms/text_box.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"
#include "forms/property_table.h"

namespace corvane::forms {

namespace {

constexpr Twips kBorders = 90;  // above and below the text of one line

constexpr PropertyEntry<TextBox> kProperties[] = {
    Entry<TextBox, &TextBox::Text, &TextBox::SetText>(Property::Text),
    Entry<TextBox, &TextBox::MultiLine, &TextBox::SetMultiLine>(Property::MultiLine),
    Entry<TextBox, &TextBox::ScrollBars, &TextBox::SetScrollBars>(Property::ScrollBars),
    Entry<TextBox, &TextBox::Locked, &TextBox::SetLocked>(Property::Locked),
    Entry<TextBox, &TextBox::MaxLength, &TextBox::SetMaxLength>(Property::MaxLength),
    Entry<TextBox, &TextBox::PasswordChar, &TextBox::SetPasswordChar>(Property::PasswordChar),
    Entry<TextBox, &TextBox::BorderStyle, &TextBox::SetBorderStyle>(Property::BorderStyle),
    Entry<TextBox, &TextBox::Alignment, &TextBox::SetAlignment>(Property::Alignment),
    Entry<TextBox, &TextBox::SelStart, &TextBox::SetSelStart>(Property::SelStart),
    Entry<TextBox, &TextBox::SelLength, &TextBox::SetSelLength>(Property::SelLength),
    Entry<TextBox, &TextBox::SelText, &TextBox::SetSelText>(Property::SelText),
};

}  // namespace

TextBox::TextBox(Container& container, std::string name, int index) : Control(container, std::move(name), index) {
  back_color_ = kWindowBackground;
  fore_color_ = kWindowText;
}

void TextBox::SetText(std::string value) {
  if (max_length_ > 0 && value.size() > static_cast<size_t>(max_length_)) value.resize(max_length_);
  sel_start_ = sel_length_ = 0;
  if (text_ == value) return Changed(Property::SelStart);
  text_ = std::move(value);
  Changed(Property::Text);
  Change();
}

void TextBox::SetMultiLine(bool value) {
  multi_line_ = value;
  Changed(Property::MultiLine);
}

void TextBox::SetScrollBars(int value) {
  if (value < 0 || value > 3) throw Error(runtime::kInvalidPropertyValue);
  scroll_bars_ = value;
  Changed(Property::ScrollBars);
}

void TextBox::SetLocked(bool value) {
  locked_ = value;
  Changed(Property::Locked);
}

void TextBox::SetMaxLength(int value) {
  if (value < 0) throw Error(runtime::kInvalidPropertyValue);
  max_length_ = value;
  Changed(Property::MaxLength);
}

void TextBox::SetPasswordChar(std::string value) {
  password_char_ = std::move(value);
  Changed(Property::PasswordChar);
}

void TextBox::SetBorderStyle(int value) {
  border_style_ = value;
  Changed(Property::BorderStyle);
}

void TextBox::SetAlignment(forms::Alignment value) {
  alignment_ = value;
  Changed(Property::Alignment);
}

std::string TextBox::SelText() const {
  return text_.substr(static_cast<size_t>(sel_start_), static_cast<size_t>(sel_length_));
}

void TextBox::SetSelStart(long value) {
  if (value < 0) throw Error(runtime::kInvalidPropertyValue);
  sel_start_ = std::min(value, static_cast<long>(text_.size()));
  sel_length_ = 0;
  Changed(Property::SelStart);
}

void TextBox::SetSelLength(long value) {
  if (value < 0) throw Error(runtime::kInvalidPropertyValue);
  sel_length_ = std::min(value, static_cast<long>(text_.size()) - sel_start_);
  Changed(Property::SelLength);
}

// The caret goes behind the new text.
void TextBox::SetSelText(const std::string& value) {
  const long caret = sel_start_ + static_cast<long>(value.size());
  std::string text = text_;
  text.replace(static_cast<size_t>(sel_start_), static_cast<size_t>(sel_length_), value);
  SetText(std::move(text));
  SetSelStart(caret);
}

void TextBox::UserEdit(std::string text, long sel_start, long sel_length) {
  if (!AcceptsInput() || locked_) return Changed(Property::Text);
  const bool differs = text_ != text;
  text_ = std::move(text);
  UserSelect(sel_start, sel_length);
  if (differs) Change();
}

void TextBox::UserSelect(long sel_start, long sel_length) {
  const long length = static_cast<long>(text_.size());
  sel_start_ = std::clamp(sel_start, 0L, length);
  sel_length_ = std::clamp(sel_length, 0L, length - sel_start_);
}

void TextBox::OnKeyReplaced(int key_ascii) {
  if (!locked_) SetSelText(std::string(1, static_cast<char>(key_ascii)));
}

Twips TextBox::MinimumHeight() const {
  if (multi_line_) return 0;
  return FormOf().Toolkit().Metrics().TextHeight(Font()) + (border_style_ != 0 ? kBorders : 0);
}

Variant TextBox::Get(Property property) const {
  return GetBy<Control>(kProperties, *this, property);
}
void TextBox::Set(Property property, const Variant& value) {
  SetBy<Control>(kProperties, *this, property, value);
}

}  // namespace corvane::forms
