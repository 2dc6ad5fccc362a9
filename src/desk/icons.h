// The program's own icons by name.
#pragma once

#include <QIcon>
#include <QString>

namespace corvane::desk {

// An empty icon for a name that is not in the set.
QIcon NamedIcon(const QString& name);

}  // namespace corvane::desk
