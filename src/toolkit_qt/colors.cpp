#include "toolkit_qt/colors.h"

#include <QGuiApplication>
#include <iterator>

namespace corvane::toolkit_qt {
namespace {

struct Role {
  QPalette::ColorGroup group;
  QPalette::ColorRole role;
};

// By number of the system's colour.
constexpr Role kRoles[] = {
    {QPalette::Active, QPalette::Midlight},         // scroll bars
    {QPalette::Active, QPalette::Dark},             // desktop
    {QPalette::Active, QPalette::Highlight},        // active title
    {QPalette::Inactive, QPalette::Mid},            // inactive title
    {QPalette::Active, QPalette::Window},           // menu
    {QPalette::Active, QPalette::Base},             // window
    {QPalette::Active, QPalette::Dark},             // window frame
    {QPalette::Active, QPalette::WindowText},       // menu text
    {QPalette::Active, QPalette::Text},             // window text
    {QPalette::Active, QPalette::HighlightedText},  // title text
    {QPalette::Active, QPalette::Mid},              // active border
    {QPalette::Active, QPalette::Mid},              // inactive border
    {QPalette::Active, QPalette::Mid},              // application workspace
    {QPalette::Active, QPalette::Highlight},        // highlight
    {QPalette::Active, QPalette::HighlightedText},  // highlight text
    {QPalette::Active, QPalette::Window},           // button face
    {QPalette::Active, QPalette::Mid},              // button shadow
    {QPalette::Disabled, QPalette::WindowText},     // grey text
    {QPalette::Active, QPalette::ButtonText},       // button text
    {QPalette::Inactive, QPalette::WindowText},     // inactive title text
    {QPalette::Active, QPalette::Light},            // 3D highlight
    {QPalette::Active, QPalette::Dark},             // 3D dark shadow
    {QPalette::Active, QPalette::Window},           // 3D light
    {QPalette::Active, QPalette::ToolTipText},      // info text
    {QPalette::Active, QPalette::ToolTipBase},      // info background
};

}  // namespace

QColor ShownColor(forms::Color color) {
  if (color & 0x80000000) {
    const forms::Color number = color & 0xFF;
    if (number >= std::size(kRoles)) return Qt::black;
    return QGuiApplication::palette().color(kRoles[number].group, kRoles[number].role);
  }
  return QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}

QPalette FieldPalette(forms::Color back, forms::Color fore) {
  QPalette palette = QGuiApplication::palette();
  palette.setColor(QPalette::Base, ShownColor(back));
  const QColor front = ShownColor(fore);
  for (auto group : {QPalette::Active, QPalette::Inactive}) {
    for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) palette.setColor(group, role, front);
  }
  return palette;
}

QPalette PaletteWith(forms::Color back, forms::Color fore) {
  QPalette palette = FieldPalette(back, fore);
  for (auto role : {QPalette::Window, QPalette::Button}) palette.setColor(role, ShownColor(back));
  return palette;
}

}  // namespace corvane::toolkit_qt
