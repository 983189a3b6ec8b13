// Finds the labels that name the controls of a form for screen readers, as in a dialog.
#pragma once

#include <vector>

#include "forms/block.h"

namespace lumenkit::forms {

struct LabelledControl {
    Block* control;
    Block* label;  ///< null if the control has none
};

/// Returns the controls of a form in tab order, each with its label: the label directly before it
/// in the tab order, if both are in the same container. The tab order is that of TabIndex; controls
/// without one come after the others, in the order of the file. Controls that never have a
/// TabIndex, such as lines, are left out.
std::vector<LabelledControl> NamingLabels(const Block& form);

}  // namespace lumenkit::forms
