#include "forms/form.h"

#include <algorithm>
#include <utility>

#include "forms/controls.h"
#include "forms/text_lines.h"
#include "runtime/strings.h"

namespace corvane::forms {

namespace {

bool IsAmong(const std::vector<Menu*>& items, const Menu* wanted) {
  return std::any_of(items.begin(), items.end(),
                     [&](const Menu* item) { return item == wanted || IsAmong(item->Items(), wanted); });
}

}  // namespace

Form::Form(forms::Toolkit& toolkit, std::string name) : toolkit_(toolkit), name_(std::move(name)) {}

Form::~Form() {
  visible_ = false;
  toolkit_.FormGone(*this, false);
  dropped_.clear();
  made_.clear();
  peer_.reset();
}

void Form::SetCaption(std::string value) {
  if (caption_ == value) return;
  caption_ = std::move(value);
  if (peer_) peer_->Changed(Property::Caption);
}

void Form::Move(Twips left, Twips top, Twips width, Twips height) {
  if (width < 0 || height < 0) throw Error(runtime::kInvalidPropertyValue);
  const Rect place{left, top, width, height};
  if (place == place_) return;
  const bool resized = place.width != place_.width || place.height != place_.height;
  place_ = place;
  if (peer_) peer_->Changed(resized ? Property::Width : Property::Left);
  if (resized && loaded_) Resize();
}

Twips Form::ScaleWidth() const {
  return std::max<Twips>(0, place_.width - toolkit_.FrameOf(*this).width);
}
Twips Form::ScaleHeight() const {
  return std::max<Twips>(0, place_.height - toolkit_.FrameOf(*this).height);
}

void Form::SetWindowState(int value) {
  if (value < vbNormal || value > vbMaximized) throw Error(runtime::kInvalidPropertyValue);
  if (window_state_ == value) return;
  window_state_ = value;
  if (peer_) peer_->Changed(Property::WindowState);
  resized_ = visible_;  // out of sight it is told when the form is shown
  if (visible_) Resize();
}

void Form::SetBackColor(Color value) {
  if (back_color_ == value) return;
  back_color_ = value;
  if (peer_) peer_->Changed(Property::BackColor);
}

void Form::SetIcon(PictureRef value) {
  icon_ = std::move(value);
  if (peer_) peer_->Changed(Property::Icon);
}

void Form::SetMousePointer(int value) {
  if (mouse_pointer_ == value) return;
  mouse_pointer_ = value;
  if (peer_) peer_->Changed(Property::MousePointer);
}

Twips Form::TextWidth(std::string_view text) const {
  return WidestLine(toolkit_.Metrics(), text, font_);
}
Twips Form::TextHeight(std::string_view text) const {
  return HeightOfLines(toolkit_.Metrics(), text, font_);
}

void Form::UserResize(Twips width, Twips height) {
  if (width == place_.width && height == place_.height) return;
  place_.width = width;
  place_.height = height;
  if (loaded_) Resize();
}

void Form::NoteSize(Twips width, Twips height) {
  if (width == place_.width && height == place_.height) return;
  place_.width = width;
  place_.height = height;
  resized_ = false;
}

void Form::UserMove(Twips left, Twips top) {
  place_.left = left;
  place_.top = top;
}

void Form::UserWindowState(int state) {
  if (window_state_ == state) return;
  window_state_ = state;
  resized_ = true;
  if (loaded_) Resize();
}

bool Form::UserKeyDown(int key_code, int shift) {
  if (!visible_ || toolkit_.IsBlocked(*this)) return true;
  KeyDown(key_code, shift);
  return key_code == 0;
}

bool Form::UserKeyPress(int key_ascii) {
  if (!visible_ || toolkit_.IsBlocked(*this)) return true;
  KeyPress(key_ascii);
  return key_ascii == 0;
}

void Form::UserKeyUp(int key_code, int shift) {
  if (visible_ && !toolkit_.IsBlocked(*this)) KeyUp(key_code, shift);
}

void Form::UserClick() {
  if (visible_ && !toolkit_.IsBlocked(*this)) Click();
}

bool Form::ShowsMenuBar() const {
  return std::any_of(menus_.begin(), menus_.end(), [](const Menu* menu) { return menu->Visible(); });
}

bool Form::HasMenu(const Menu* item) const {
  return IsAmong(menus_, item);
}

void Form::PopupMenu(Menu& menu, Twips x, Twips y) {
  menu.UserOpen();
  toolkit_.PopupMenu(*this, menu, x, y);
}

}  // namespace corvane::forms
