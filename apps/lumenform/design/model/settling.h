#pragma once

#include "forms/block.h"

namespace lumenkit::lumenform {

/// Prepares the controls of `clip` for insertion into `form`: renames controls whose names are
/// taken (see CopyName), gives elements of control arrays free indices, and continues the tab order
/// of the form.
void SettleInto(const forms::Block& form, const forms::Block& clip);

}  // namespace lumenkit::lumenform
