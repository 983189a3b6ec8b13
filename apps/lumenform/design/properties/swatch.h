#pragma once

#include <QColor>
#include <QIcon>
#include <QSize>

namespace lumenkit::lumenform {

/// Returns a field of the colour with a border that is visible on any background. `scale` is the
/// number of device pixels per pixel.
QIcon Swatch(const QColor& color, QSize size, double scale);

}  // namespace lumenkit::lumenform
