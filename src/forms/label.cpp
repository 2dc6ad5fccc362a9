#include <algorithm>
#include <utility>

#include "forms/form.h"
#include "forms/mnemonic.h"
#include "forms/property_table.h"
#include "forms/static_controls.h"
#include "forms/text_lines.h"

namespace corvane::forms {

namespace {

constexpr Twips kBorders = 60;  // both together, with BorderStyle 1

constexpr PropertyEntry<Label> kProperties[] = {
    Entry<Label, &Label::Caption, &Label::SetCaption>(Property::Caption),
    Entry<Label, &Label::Alignment, &Label::SetAlignment>(Property::Alignment),
    Entry<Label, &Label::BorderStyle, &Label::SetBorderStyle>(Property::BorderStyle),
    Entry<Label, &Label::AutoSize, &Label::SetAutoSize>(Property::AutoSize),
    Entry<Label, &Label::WordWrap, &Label::SetWordWrap>(Property::WordWrap),
    Entry<Label, &Label::BackStyle, &Label::SetBackStyle>(Property::BackStyle),
    Entry<Label, &Label::UseMnemonic, &Label::SetUseMnemonic>(Property::UseMnemonic),
};

}  // namespace

void Label::SetCaption(std::string value) {
  if (caption_ == value) return;
  caption_ = std::move(value);
  Changed(Property::Caption);
  FitToCaption();
  Change();
}

void Label::SetFont(const forms::Font& value) {
  Control::SetFont(value);
  FitToCaption();
}

// AutoSize: as wide and high as the caption; with WordWrap the width stays.
void Label::FitToCaption() {
  if (!auto_size_) return;
  TextMetrics& metrics = FormOf().Toolkit().Metrics();
  const std::string text = use_mnemonic_ ? WithoutMnemonic(caption_) : caption_;
  const Twips borders = border_style_ != 0 ? kBorders : 0;
  if (!word_wrap_) {
    return Move(Left(), Top(), WidestLine(metrics, text, Font()) + borders,
                HeightOfLines(metrics, text, Font()) + borders);
  }
  Move(Left(), Top(), Width(), WrappedHeight(metrics, text, Font(), Width() - borders) + borders);
}

void Label::SetAlignment(forms::Alignment value) {
  alignment_ = value;
  Changed(Property::Alignment);
}

void Label::SetBorderStyle(int value) {
  border_style_ = value;
  Changed(Property::BorderStyle);
  FitToCaption();
}

void Label::SetAutoSize(bool value) {
  auto_size_ = value;
  Changed(Property::AutoSize);
  FitToCaption();
}

void Label::SetWordWrap(bool value) {
  word_wrap_ = value;
  Changed(Property::WordWrap);
  FitToCaption();
}

void Label::SetBackStyle(int value) {
  back_style_ = value;
  Changed(Property::BackStyle);
}

void Label::SetUseMnemonic(bool value) {
  use_mnemonic_ = value;
  Changed(Property::UseMnemonic);
  FitToCaption();
}

Variant Label::Get(Property property) const {
  return GetBy<Control>(kProperties, *this, property);
}
void Label::Set(Property property, const Variant& value) {
  SetBy<Control>(kProperties, *this, property, value);
}

}  // namespace corvane::forms
