#pragma once

#include "apps/lumenkit/check/saved_control.h"

namespace lumenkit::check {

/// Adds the errors that the control reports when it is loaded and drawn, except about properties
/// for which there is a finding that says so.
void CheckTrial(SavedControl& control);

}  // namespace lumenkit::check
