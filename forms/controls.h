// Functions to enumerate and name the controls of a form.
#pragma once

#include <vector>

#include "forms/block.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// Returns the controls inside `block`, at any depth, in the order of the file.
std::vector<Block*> AllControls(const Block& block);

/// Returns the name of a control in code: "VLabel1", or "VLabel1(3)" for the element of an array.
Text NameInCode(const Block& control);

}  // namespace lumenkit::forms
