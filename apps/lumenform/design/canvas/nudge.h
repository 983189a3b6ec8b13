#pragma once

#include <QKeyEvent>

#include "apps/lumenform/design/canvas/gesture.h"

namespace lumenkit::lumenform {

/// Handles an arrow key: it moves the selected controls, or with Shift sizes them, by a grid step
/// or with Ctrl by a pixel. With Shift, it also sizes the form if no control is selected. Returns
/// false for another key. Throws as FormDesign does.
bool Nudge(const Ground& ground, const QKeyEvent& key);

}  // namespace lumenkit::lumenform
