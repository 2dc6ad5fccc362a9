// TextBox: one line or many.
#pragma once

#include "forms/static_controls.h"  // Alignment

namespace corvane::forms {

class TextBox : public Control {
 public:
  TextBox(Container& container, std::string name, int index = -1);
  ControlKind Kind() const override { return ControlKind::TextBox; }
  bool CanTakeFocus() const override { return true; }
  const std::string& Text() const { return text_; }
  void SetText(std::string value);  // raises Change when it differs; the caret goes to the start
  bool MultiLine() const { return multi_line_; }
  void SetMultiLine(bool value);
  int ScrollBars() const { return scroll_bars_; }  // 0 none, 1 horizontal, 2 vertical, 3 both
  void SetScrollBars(int value);
  bool Locked() const { return locked_; }
  void SetLocked(bool value);
  int MaxLength() const { return max_length_; }
  void SetMaxLength(int value);
  const std::string& PasswordChar() const { return password_char_; }
  void SetPasswordChar(std::string value);
  int BorderStyle() const { return border_style_; }
  void SetBorderStyle(int value);
  forms::Alignment Alignment() const { return alignment_; }
  void SetAlignment(forms::Alignment value);
  // From 0. SelStart and SelLength are cut to the text; a negative one is Error 380.
  long SelStart() const { return sel_start_; }
  long SelLength() const { return sel_length_; }
  std::string SelText() const;
  void SetSelStart(long value);
  void SetSelLength(long value);
  void SetSelText(const std::string& value);
  Event<> Change;

  // The user's edit: the whole new text and the caret, after KeyPress let the key pass.
  void UserEdit(std::string text, long sel_start, long sel_length);
  void UserSelect(long sel_start, long sel_length);
  Variant Get(Property property) const override;
  void Set(Property property, const Variant& value) override;

 protected:
  bool ClicksOnRelease() const override { return true; }
  void OnKeyReplaced(int key_ascii) override;
  Twips MinimumHeight() const override;

 private:
  forms::Alignment alignment_ = forms::Alignment::Left;
  std::string text_, password_char_;
  bool multi_line_ = false, locked_ = false;
  int scroll_bars_ = 0, max_length_ = 0, border_style_ = 1;
  long sel_start_ = 0, sel_length_ = 0;
};

}  // namespace corvane::forms
