// UserControl: a control made of controls. Its class has them as members, and lays them out in Resize.
#pragma once

#include "forms/control.h"

namespace corvane::forms {

class UserControl : public Control, public Container {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::UserControl; }
  Form& FormOfContainer() override { return FormOf(); }
  Control* AsControl() override { return this; }
  bool CanTakeFocus() const override { return true; }

 protected:
  // Puts the surface of the control into place; called whenever its size changes and when its form is loaded.
  void OnResize() override {}
  void OnLoaded() override { OnResize(); }
};

}  // namespace corvane::forms
