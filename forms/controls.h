// Functions to enumerate and name the controls of a form.
#pragma once

#include <string>
#include <vector>

#include "forms/block.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// Returns the controls inside `block`, at any depth, in the order of the file.
std::vector<Block*> AllControls(const Block& block);

/// A control with the name of an earlier one.
struct NameClash {
    const Block* control;
    const Block* earlier;
};

/// Returns the controls inside `block` whose names are those of earlier ones, without regard to
/// case. The elements of a control array share their name and have different indices.
std::vector<NameClash> NameClashes(const Block& block);

/// "there is a control \"A\" already (line 3)"
std::string TextOf(const NameClash& clash);

/// Returns the name of a control in code: "VLabel1", or "VLabel1(3)" for the element of an array.
Text NameInCode(const Block& control);

}  // namespace lumenkit::forms
