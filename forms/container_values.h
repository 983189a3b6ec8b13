#pragma once

#include <vector>

#include "forms/block.h"
#include "forms/warning.h"

namespace lumenkit::forms {

/// Returns warnings about values that every container of controls reads and that it cannot use:
/// places that are no numbers, negative sizes, a TabIndex or Index out of range, and a font that is
/// no group. Values that reading did not understand have a warning already.
std::vector<Warning> ContainerWarnings(const Block& form);

}  // namespace lumenkit::forms
