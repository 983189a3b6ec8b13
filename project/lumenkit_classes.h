// The project descriptor: the only place that lists all classes of the library.
#pragma once

#include "frame/class_table.h"

namespace lumenkit {

/// VLabel, VMemo, VOptList and VLabelCaption, in this order. Do not use it before main starts.
extern const ClassTable lumenkitClasses;

}  // namespace lumenkit
