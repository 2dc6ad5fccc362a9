// The controls of a designer as they stand: read once for each change, in logical pixels.
#pragma once

#include <QPointF>
#include <QRectF>
#include <memory>
#include <string>
#include <vector>

#include "environment/module.h"

namespace corvane::desk {

struct PlacedControl {
  long position = 0;  // in VBControls, from 1
  std::string name, class_name, caption;
  long index = -1;                // in a control array, -1 outside one
  int container = -1;             // place in Layout::controls, -1 for the form
  QRectF place;                   // in its container
  QRectF on_form;                 // the same, from the form's own corner
  double unit_x = 1, unit_y = 1;  // twips to the unit of its container
  host::Ref<host::Properties> properties;

  bool IsMenu() const { return class_name == "Menu"; }
  // Painted by its container: always behind those that are windows.
  bool IsLight() const;
};

struct Layout {
  std::string caption;
  QSizeF client;
  bool has_title_bar = false, is_mdi = false;
  host::Ref<host::Properties> properties;  // of the form itself
  std::vector<PlacedControl> controls;     // in the order of VBControls: behind their containers, front to back

  bool HasMenuBar() const;
  // Direct children of a container; menus of a menu (-1: of the bar).
  std::vector<int> Inside(int container) const;
  // Those of them that are no menus, front to back.
  std::vector<int> FrontToBack(int container) const;
  // The frontmost control at a place on the form, -1 for the form itself.
  int At(const QPointF& place) const;
};

// Controls that cannot be read are left out.
Layout ReadLayout(environment::Module& module);

}  // namespace corvane::desk
