// Colours of the logic as Qt has them; the system's colours come from the palette in force.
#pragma once

#include <QColor>
#include <QPalette>

#include "forms/types.h"

namespace corvane::toolkit_qt {

QColor ShownColor(forms::Color color);

// The palette of a control with these colours on itself and its text.
QPalette PaletteWith(forms::Color back, forms::Color fore);
// The same for a field with a frame around it: the frame keeps the system's colours.
QPalette FieldPalette(forms::Color back, forms::Color fore);

}  // namespace corvane::toolkit_qt
