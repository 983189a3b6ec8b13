#pragma once

#include <QWidget>

namespace lumenkit::testing {

/// Returns whether the program is a client of a Wayland compositor.
bool IsOnWayland();

/// Shows the window, and returns when it is active. Throws if that takes too long on Wayland; other
/// platforms take the window for active.
void ShowActive(QWidget& window);

}  // namespace lumenkit::testing
