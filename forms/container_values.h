#pragma once

#include "forms/document.h"

namespace lumenkit::forms {

/// Warns about values that every container of controls reads and that it cannot use: places that
/// are no numbers, negative sizes, a TabIndex or Index out of range, and a font that is no group.
void CheckContainerValues(const Document& document);

}  // namespace lumenkit::forms
