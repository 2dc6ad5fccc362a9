// The desk without a user: walks through the windows and keeps pictures of them.
#pragma once

#include <QString>
#include <QStringList>
#include <ostream>

#include "desk/desk.h"

namespace corvane::desk {

// Clicks the add-in's button, chooses a component and a procedure in the explorer, goes to its code, and writes a
// picture of the desk and of the explorer into [folder]. Tells on [out] what it did and where the pictures are; false
// where that failed.
bool RunTour(Desk& desk, const QString& folder, std::ostream& out);

// Pictures of every window into [folder], as <window><suffix>.png. False when one could not be drawn or written.
bool TakeScreenshots(Desk& desk, const QString& folder, const QString& suffix, std::ostream& out);

}  // namespace corvane::desk
