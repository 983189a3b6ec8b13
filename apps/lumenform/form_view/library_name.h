#pragma once

#include <string>

#include "frame/class_table.h"

namespace lumenkit::form {

/// "{6B1A…}#7.1#0": how a form names the type library of the classes.
std::string LibraryName(const ClassTable& classes);

}  // namespace lumenkit::form
