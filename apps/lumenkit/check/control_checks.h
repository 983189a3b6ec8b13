// The checks of the saved properties of a control: one for each class and one for all classes.
#pragma once

#include "apps/lumenkit/check/saved_control.h"

namespace lumenkit::check {

void CheckLabel(SavedControl& control);
void CheckMemo(SavedControl& control);
void CheckOptionList(SavedControl& control);

/// Reports saved names that the control never reads.
void CheckNames(SavedControl& control);

}  // namespace lumenkit::check
