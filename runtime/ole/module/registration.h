#pragma once

#include "frame/class_table.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// Writes the registry entries of all classes and type libraries of the module. Raises a ComError;
/// some entries may be written then.
void Register(const ClassTable& classes);

/// Removes the entries of this bitness that name the module's file. A programmatic identifier is
/// kept as long as another server, of the other bitness or in another folder, is registered for its
/// class. Missing entries are not an error. Tries to remove all entries before it raises a
/// ComError.
void Unregister(const ClassTable& classes);

}  // namespace lumenkit::ole
