// Where the file holds the client area and the Properties window shows the outside, or the other way round.
#pragma once

#include "environment/control_classes.h"
#include "environment/designer_part.h"

namespace corvane::environment {

// What a window's frame adds to its client area, in twips.
struct FrameSizes {
  double left = 0, top = 0;      // of the client area in the window
  double width = 0, height = 0;  // outside less client area
};
FrameSizes FrameOf(const DesignerBlock& root);

// A length of a window by its rule: Height of a form and the like.
double FrameLength(const DesignerBlock& root, const ControlClass& window, PropertyRule rule);
// False when the part says so already.
bool SetFrameLength(DesignerPart& part, DesignerBlock& root, PropertyRule rule, double value);

// ScaleWidth and ScaleHeight follow the size, where the environment keeps them.
bool UpdateScale(DesignerPart& part, DesignerBlock& block, const ControlClass& known);
// Twips of one unit of a container's scale; 1 for user scales.
double TwipsPerUnit(long scale_mode, bool vertical);

}  // namespace corvane::environment
