// Pictures of windows, also where there is no display.
#pragma once

#include <QImage>
#include <string>

#include "forms/form.h"

namespace corvane::toolkit_qt {

class QtToolkit;

// The window of a visible form as it looks on a display of [scale] (1: 96 dots to the inch). Null when it is not
// loaded.
QImage PictureOfWindow(QtToolkit& toolkit, forms::Form& form, double scale = 1);

// The same into a file, in the format its name tells. False when there is no window or it cannot be written.
bool SaveWindowPicture(QtToolkit& toolkit, forms::Form& form, const std::string& path, double scale = 1);

}  // namespace corvane::toolkit_qt
