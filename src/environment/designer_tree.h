// Changes of a designer part's tree in the environment's own way of writing: which line stands where.
#pragma once

#include <string>
#include <string_view>

#include "environment/control_classes.h"
#include "environment/designer_part.h"

namespace corvane::environment {

class DesignerState;

// The class of a block by its type; null for classes of other libraries. The head of a class file is "VB.Class".
const ControlClass* ClassOf(DesignerState& state, const DesignerBlock& block);
bool IsMenu(const DesignerBlock& block);

// The line that holds [name] gets [value] (with its comment); a new one stands in its alphabetical place among the
// block's properties, a leading "_" ignored. False when the line says so already.
bool SetLine(DesignerPart& part, DesignerBlock& block, std::string_view name, const std::string& value);
// False when there is none.
bool RemoveLine(DesignerBlock& block, std::string_view name);
// A BeginProperty block in its alphabetical place.
DesignerBlock& AddPropertyBlock(DesignerPart& part, DesignerBlock& block, std::string_view name);

// The value of a property line; both empty if there is none.
DesignerValue LineValue(const DesignerBlock& block, std::string_view name);
long LongValue(const DesignerBlock& block, std::string_view name, long otherwise);
double LengthValue(const DesignerBlock& block, std::string_view name, double otherwise);

// A control in its place: behind the other controls of [parent] and before its menus, a menu behind them all.
void PlaceControl(DesignerBlock& parent, const DesignerBlockRef& control);
// Takes [block] and all in it out of the tree.
void TakeOut(DesignerBlock& block);

}  // namespace corvane::environment
