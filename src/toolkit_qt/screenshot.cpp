#include "toolkit_qt/screenshot.h"

#include <QCoreApplication>
#include <QPainter>
#include <QWidget>

#include "forms/picture_box.h"
#include "toolkit_qt/toolkit.h"

namespace corvane::toolkit_qt {
namespace {

// Surfaces are kept in device pixels: at another scale the controls draw them again.
void RedrawSurfaces(QtToolkit& toolkit, forms::Form& form, double scale) {
  toolkit.SetScaleForPicture(scale);
  for (forms::Control* control : form.AllControls()) {
    auto* box = dynamic_cast<forms::PictureBox*>(control);
    if (!box || !box->Peer()) continue;
    box->Peer()->Changed(forms::Property::Width);
    toolkit.Guard([box] { box->Paint(); });
  }
}

}  // namespace

QImage PictureOfWindow(QtToolkit& toolkit, forms::Form& form, double scale) {
  QCoreApplication::processEvents();
  QWidget* window = toolkit.WindowOf(form);
  if (!window) return {};
  const bool same = scale == window->devicePixelRatioF();
  if (!same) RedrawSurfaces(toolkit, form, scale);
  QImage image((QSizeF(window->size()) * scale).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::white);
  window->render(&image);
  if (!same) RedrawSurfaces(toolkit, form, 0);
  return image;
}

bool SaveWindowPicture(QtToolkit& toolkit, forms::Form& form, const std::string& path, double scale) {
  const QImage image = PictureOfWindow(toolkit, form, scale);
  return !image.isNull() && image.save(QString::fromStdString(path));
}

}  // namespace corvane::toolkit_qt
