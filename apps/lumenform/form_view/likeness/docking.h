#pragma once

#include <QSize>
#include <vector>

#include "apps/lumenform/form_view/live_control.h"

namespace lumenkit::lumenform {

/// Places the docking controls of a form along its edges, one after the other in the order of their
/// saved places. A hidden control takes no room. `form` is the size of the client area in pixels.
void DockControls(const std::vector<LiveControl*>& controls, QSize form);

}  // namespace lumenkit::lumenform
