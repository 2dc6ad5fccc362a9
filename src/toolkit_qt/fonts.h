// Fonts of the logic as Qt has them.
#pragma once

#include <QFont>

#include "forms/types.h"

namespace corvane::toolkit_qt {

// Sized in whole logical pixels, as the platform's own font mapper does it, whatever the display's resolution.
QFont ShownFont(const forms::Font& font);

// Of menus: Qt's own is wider than the windows' texts.
QFont MenuFont();

// Logical pixels of a line of text: whole ones above and below the base line.
int LineHeight(const QFont& font);

// Names what stands in for fonts that are not installed. Once, before the first window.
void NameSubstitutes();

}  // namespace corvane::toolkit_qt
