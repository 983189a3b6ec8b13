#pragma once

#include "frame/class_table.h"

namespace lumenkit::ole {

/// Returns the number of objects of the table's classes, class factories included, that clients
/// hold. Used to check that no object is leaked.
int LiveObjects(const ClassTable& classes);

}  // namespace lumenkit::ole
