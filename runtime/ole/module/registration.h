#pragma once

#include "frame/class_table.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// Writes the registry entries of all classes and type libraries of the module. Raises a ComError;
/// some entries may be written then.
void Register(const ClassTable& classes);

/// Removes the entries. Tries to remove all of them before it raises a ComError.
void Unregister(const ClassTable& classes);

}  // namespace lumenkit::ole
