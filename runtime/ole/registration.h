#pragma once

#include "frame/class_table.h"
#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

/// Writes the registry entries of all classes and type libraries of the module. Raises a ComError;
/// part of it may be written then.
void Register(const ClassTable& classes);

/// Removes them. Tries all of it before it raises a ComError.
void Unregister(const ClassTable& classes);

}  // namespace lumenkit::ole
