// The project descriptor: the one place that knows all classes of the library.
#pragma once

#include "frame/class_table.h"

namespace lumenkit {

/// VLabel, VMemo, VOptList and VLabelCaption, in this order. Not to be used before main begins.
extern const ClassTable lumenkitClasses;

}  // namespace lumenkit
