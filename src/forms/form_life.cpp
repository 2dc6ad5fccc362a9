// How a form comes and goes: load, show, hide, unload.
#include <algorithm>
#include <utility>

#include "forms/controls.h"

namespace corvane::forms {

namespace {

constexpr long kObjectWasUnloaded = 364;

}  // namespace

void Form::LoadForm() {
  if (loaded_) return;
  loaded_ = true;
  resized_ = false;
  peer_ = toolkit_.NewFormPeer(*this);
  MakePeers();
  Load();
}

void Form::MakePeers() {
  const auto make_menu = [this](auto&& self, Menu& menu) -> void {
    MakePeer(menu);
    for (Menu* item : menu.Items()) self(self, *item);
  };
  for (Menu* menu : menus_) make_menu(make_menu, *menu);
  const std::vector<Control*> children = Controls();
  for (Control* control : children) MakePeer(*control);
  if (peer_) peer_->Changed(Property::All);
}

void Form::MakePeer(Control& control) {
  if (!loaded_) return;
  control.peer_ = toolkit_.NewPeer(control);
  control.Changed(Property::All);
  if (const Container* container = dynamic_cast<const Container*>(&control)) {
    const std::vector<Control*> children = container->Controls();
    for (Control* child : children) MakePeer(*child);
  }
  control.OnLoaded();
}

void Form::DropPeers() {
  const auto drop = [](auto&& self, Control& control) -> void {
    if (const Container* container = dynamic_cast<const Container*>(&control)) {
      for (Control* child : container->Controls()) self(self, *child);
    }
    if (const Menu* menu = dynamic_cast<const Menu*>(&control)) {
      for (Menu* item : menu->Items()) self(self, *item);
    }
    control.peer_.reset();
  };
  for (Control* control : Controls()) drop(drop, *control);
  for (Menu* menu : menus_) drop(drop, *menu);
  peer_.reset();
}

void Form::Show() {
  if (!visible_ && toolkit_.IsBlocked(*this)) throw Error(runtime::kModelessOverModal);
  LoadToShow();
  Appear();
}

void Form::LoadToShow() {
  LoadForm();
  if (!loaded_) throw Error(kObjectWasUnloaded, "Object was unloaded");  // by its own Load
}

void Form::ShowModal() {
  if (visible_) throw Error(runtime::kFormAlreadyDisplayed);
  LoadToShow();
  if (visible_) return;  // Load showed it
  modal_ = true;
  Appear();
  if (visible_) toolkit_.RunModal(*this);
}

void Form::Appear() {
  const bool appears = !visible_;
  visible_ = true;
  if (appears) {
    toolkit_.FormShown(*this);
    peer_->Changed(Property::Visible);
  }
  if (!std::exchange(resized_, true)) Resize();
  if (!visible_ || toolkit_.IsBlocked(*this)) return;
  peer_->Activate();
  toolkit_.Activate(*this);
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  if (peer_) peer_->Changed(Property::Visible);
  toolkit_.FormGone(*this, true);
  focused_ = nullptr;
  modal_ = false;
}

bool Form::Unload(UnloadMode mode) {
  if (!loaded_ || unloading_) return true;
  unloading_ = true;
  bool cancel = false;
  try {
    QueryUnload(cancel, mode);
    if (!cancel) UnloadEvent(cancel);
  } catch (...) {
    unloading_ = false;
    throw;
  }
  unloading_ = false;
  if (cancel) return false;
  visible_ = loaded_ = modal_ = false;
  active_control_ = focused_ = nullptr;
  DropPeers();
  for (const auto& [owner, hook] : unload_hooks_) hook();
  for (auto& control : made_) dropped_.push_back(std::move(control));
  made_.clear();
  if (!toolkit_.IsInAct()) dropped_.clear();
  toolkit_.FormGone(*this, false);
  return true;
}

void Form::SetFocus() {
  if (!visible_) throw Error(runtime::kInvalidProcedureCall);
  if (toolkit_.IsBlocked(*this)) return;
  peer_->Activate();
  toolkit_.Activate(*this);
}

bool Form::IsActiveForm() const {
  return toolkit_.ActiveForm() == this;
}

void Form::UserActivate(bool active) {
  if (active && visible_ && !toolkit_.IsBlocked(*this)) toolkit_.Activate(*this);
}

void Form::GainActivation() {
  Activate();
  if (!visible_ || !IsActiveForm()) return;
  if (!active_control_) active_control_ = NextStop(nullptr, +1);
  if (!active_control_) return GotFocus();
  if (focused_ == active_control_) return;  // Activate gave the focus itself
  if (active_control_->peer_) active_control_->peer_->TakeFocus();
  TellFocus(nullptr, active_control_);
}

void Form::LoseActivation() {
  if (active_control_) {
    TellFocus(active_control_, nullptr);
  } else {
    LostFocus();
  }
  Deactivate();
}

}  // namespace corvane::forms
