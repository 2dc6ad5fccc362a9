// Pictures decoded by their content, at the size and resolution they are shown in.
#pragma once

#include <QIcon>
#include <QImage>
#include <QSize>

#include "forms/types.h"

namespace corvane::toolkit_qt {

// Its own size in logical pixels; empty for none or one that cannot be decoded.
QSize SizeOf(const forms::PictureRef& picture);

// Scaled to [size] device pixels; null for none or one that cannot be decoded. The few sizes asked for last are kept
// while the picture lives.
QImage ImageOf(const forms::PictureRef& picture, QSize size);

// For buttons, menus and windows: sharp at each resolution of the display.
QIcon IconOf(const forms::PictureRef& picture);

}  // namespace corvane::toolkit_qt
