// Finding one's way among the controls of a form.
#pragma once

#include <vector>

#include "forms/block.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// The controls that lie in `block`, at whatever depth, in the order of the file.
std::vector<Block*> AllControls(const Block& block);

/// The name that code calls a control by: "VLabel1", or "VLabel1(3)" for the element of an array.
Text NameInCode(const Block& control);

}  // namespace lumenkit::forms
