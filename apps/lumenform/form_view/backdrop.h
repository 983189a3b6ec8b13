#pragma once

#include <QWidget>

namespace lumenkit::lumenform {

/// Makes a widget that fills its background paint it itself. Qt then does not know that the widget
/// hides what is behind it. Otherwise Qt keeps, for every widget behind it in the same container, a
/// list of the rectangles that are not hidden: gigabytes for ten thousand labels side by side.
void PaintOwnBackground(QWidget& widget);

}  // namespace lumenkit::lumenform
