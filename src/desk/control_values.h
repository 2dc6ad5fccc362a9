// Reading design-time properties: a value or what stands in for it when the property cannot be read.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <string>

#include "host/designer.h"

namespace corvane::desk {

class ControlValues {
 public:
  explicit ControlValues(host::Ref<host::Properties> properties) : properties_(std::move(properties)) {}
  bool Has(const std::string& name) const;
  double Number(const std::string& name, double otherwise = 0) const;
  bool Flag(const std::string& name, bool otherwise = false) const;
  std::string Text(const std::string& name) const;
  QColor Color(const std::string& name, unsigned otherwise) const;
  QFont Font() const;  // the object property "Font"
  runtime::PictureRef Picture(const std::string& name) const;
  std::vector<std::string> List(const std::string& name, long at_most) const;

 private:
  host::Ref<host::Property> Find(const std::string& name) const;  // Nothing if there is none
  host::Ref<host::Properties> properties_;
};

// Twips to the unit of a ScaleMode, across and down. User scales (0) are given by the caller's container.
struct Unit {
  double x = 1, y = 1;
};
Unit UnitOfScaleMode(int mode);

}  // namespace corvane::desk
