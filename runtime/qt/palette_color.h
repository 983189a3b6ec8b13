#pragma once

#include <QColor>
#include <QPalette>

#include "frame/color.h"

namespace lumenkit::qt {

/// A colour of the controls as the palette shows it. Button face and text are the palette's window
/// colours: forms and what lies on them have one background. A system colour that the palette has
/// nothing for is its text colour.
QColor ToQColor(Color color, const QPalette& palette);

}  // namespace lumenkit::qt
