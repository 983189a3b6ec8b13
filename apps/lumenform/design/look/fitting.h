#pragma once

#include <QWidget>

namespace lumenkit::lumenform {

/// Gives a window this size, as far as its screen has the room.
void ResizeWithin(QWidget& window, QSize size);

}  // namespace lumenkit::lumenform
