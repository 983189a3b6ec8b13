// The names of the steps in the history.
#pragma once

#include <QString>
#include <cstddef>

#include "apps/lumenform/form_view/live_control.h"

namespace lumenkit::lumenform {

/// Names the control `one` if it is the only one.
QString MoveTitle(std::size_t count, const LiveControl& one);
QString SizeTitle(std::size_t count, const LiveControl& one);
QString SizeFormTitle();
QString TabOrderTitle();

}  // namespace lumenkit::lumenform
