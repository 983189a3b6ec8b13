#pragma once

#include <QColor>
#include <QIcon>
#include <QSize>

namespace lumenkit::form {

/// A field of a colour with an edge that is seen on any background, for a screen of that many
/// pixels a unit.
QIcon Swatch(const QColor& color, QSize size, double scale);

}  // namespace lumenkit::form
