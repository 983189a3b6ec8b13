#pragma once

#include "frame/class_table.h"

namespace lumenkit::ole {

/// How many objects of the table's classes, class factories included, clients hold; for watching
/// that none is left behind.
int LiveObjects(const ClassTable& classes);

}  // namespace lumenkit::ole
