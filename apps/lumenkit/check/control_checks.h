// The checks of what a form saves, one for each kind of control and one for all of them.
#pragma once

#include "apps/lumenkit/check/saved_control.h"

namespace lumenkit::check {

void CheckLabel(SavedControl& control);
void CheckMemo(SavedControl& control);
void CheckOptionList(SavedControl& control);

/// Names that are saved but never read, whichever the control.
void CheckNames(SavedControl& control);

}  // namespace lumenkit::check
