#pragma once

#include <QColor>
#include <QPalette>

#include "frame/color.h"

namespace lumenkit::qt {

/// Returns the colour that the palette shows for a colour of the controls. Button face and button
/// text are the palette's window colours, so that a form and its controls have one background. A
/// system colour without a counterpart in the palette becomes the window text colour.
QColor ToQColor(Color color, const QPalette& palette);

}  // namespace lumenkit::qt
