#pragma once

#include "apps/lumenkit/check/saved_control.h"

namespace lumenkit::check {

/// Reports saved names that the control never reads.
void CheckNames(SavedControl& control);

}  // namespace lumenkit::check
