#include "desk/icons.h"

#include <QHash>

#include "forms/icons.h"
#include "toolkit_qt/pictures.h"

namespace corvane::desk {

QIcon NamedIcon(const QString& name) {
  static QHash<QString, QIcon> made;
  if (const auto found = made.constFind(name); found != made.constEnd()) return *found;
  return *made.insert(name, toolkit_qt::IconOf(forms::Icon(name.toStdString())));
}

}  // namespace corvane::desk
