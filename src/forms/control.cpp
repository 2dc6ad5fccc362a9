#include "forms/control.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"

namespace corvane::forms {

Control::Control(Container& container, std::string name, int index)
    : name_(std::move(name)), index_(index), form_(&container.FormOfContainer()), container_(&container) {
  container.controls_.push_back(this);
  form_->Register(*this);
}

Control::Control(NotOnSurface, Container& container, std::string name, int index)
    : name_(std::move(name)), index_(index), form_(&container.FormOfContainer()), container_(&container) {}

Control::~Control() {
  peer_.reset();
  Leave();
  form_->Forget(*this);
}

void Control::Leave() {
  if (container_) std::erase(container_->controls_, this);
}

Form& Control::FormOf() const {
  return *form_;
}

Container::~Container() {
  for (Control* child : controls_) {
    child->peer_.reset();
    child->container_ = nullptr;
  }
}

void Control::Changed(Property property) {
  if (peer_) peer_->Changed(property);
}

void Control::Move(Twips left, Twips top, Twips width, Twips height) {
  if (width < 0 || height < 0) throw Error(runtime::kInvalidPropertyValue);
  const Rect place{left, top, width, std::max(height, MinimumHeight())};
  if (place == place_) return;
  const bool resized = place.width != place_.width || place.height != place_.height;
  place_ = place;
  Changed(Property::Left);
  if (!resized) return;
  Changed(Property::Width);
  OnResize();
}

void Control::SetVisible(bool value) {
  if (visible_ == value) return;
  visible_ = value;
  Changed(Property::Visible);
  if (!value) form_->FocusLeaves(*this);
}

void Control::SetEnabled(bool value) {
  if (enabled_ == value) return;
  enabled_ = value;
  Changed(Property::Enabled);
  if (!value) form_->FocusLeaves(*this);
}

bool Control::IsShown() const {
  if (!visible_ || !container_) return false;
  const Control* holder = container_->AsControl();
  return !holder || holder->IsShown();
}

bool Control::IsActive() const {
  if (!enabled_ || !container_) return false;
  const Control* holder = container_->AsControl();
  return !holder || holder->IsActive();
}

bool Control::AcceptsInput() const {
  return form_->Visible() && IsShown() && IsActive() && !form_->Toolkit().IsBlocked(*form_);
}

void Control::SetToolTipText(std::string value) {
  if (tool_tip_ == value) return;
  tool_tip_ = std::move(value);
  Changed(Property::ToolTipText);
}

void Control::SetTabIndex(int value) {
  form_->Renumber(*this, value);
}

void Control::SetBackColor(Color value) {
  if (back_color_ == value) return;
  back_color_ = value;
  Changed(Property::BackColor);
}

void Control::SetForeColor(Color value) {
  if (fore_color_ == value) return;
  fore_color_ = value;
  Changed(Property::ForeColor);
}

void Control::SetFont(const forms::Font& value) {
  if (font_ == value) return;
  font_ = value;
  Changed(Property::Font);
}

void Control::SetMousePointer(int value) {
  if (mouse_pointer_ == value) return;
  mouse_pointer_ = value;
  Changed(Property::MousePointer);
}

void Control::ZOrder(int position) {
  if (!container_) return;
  auto& siblings = container_->controls_;
  std::erase(siblings, this);
  siblings.insert(position == 0 ? siblings.end() : siblings.begin(), this);
  if (peer_) peer_->BringToFront(position == 0);
}

void Control::SetContainer(Container& container) {
  if (&container == container_) return;
  if (&container.FormOfContainer() != form_) throw Error(runtime::kInvalidPropertyValue);
  Leave();
  container_ = &container;
  container.controls_.push_back(this);
  if (peer_) form_->MakePeer(*this);
}

}  // namespace corvane::forms
