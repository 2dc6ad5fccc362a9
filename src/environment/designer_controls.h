// The host's VBForm, VBControls and VBControl over a designer part.
#pragma once

#include <memory>

#include "environment/designer_state.h"
#include "host/designer.h"

namespace corvane::environment {

host::Ref<host::VBForm> NewForm(std::shared_ptr<DesignerState> state);

// Makes a control of [known] in [container], named, sized and placed as a new one, and returns it.
DesignerBlockRef AddControl(DesignerState& state, const ControlClass& known, DesignerBlock& container);
// Takes a control and those in it away.
void RemoveControl(DesignerState& state, DesignerBlock& control);

}  // namespace corvane::environment
