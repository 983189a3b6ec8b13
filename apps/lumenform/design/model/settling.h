#pragma once

#include "forms/block.h"

namespace lumenkit::form {

/// Makes the controls of `clip` ready to come into `form`: names that are taken there become fresh
/// ones, elements of control arrays get free indices, and the tab order goes on behind the form's.
void SettleInto(const forms::Block& form, const forms::Block& clip);

}  // namespace lumenkit::form
