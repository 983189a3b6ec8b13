#pragma once

#include <QKeyEvent>

#include "apps/lumenform/design/canvas/gesture.h"

namespace lumenkit::form {

/// What an arrow key does: alone it moves what is selected, with Shift it sizes it, by a step of
/// the grid or with Ctrl by a pixel. False for another key. Throws as Design does.
bool Nudge(const Ground& ground, const QKeyEvent& key);

}  // namespace lumenkit::form
