#pragma once

#include <string>

#include "frame/class_table.h"

namespace lumenkit::lumenform {

/// Returns the reference with which a form names the type library of the classes: "{6B1A…}#7.1#0".
std::string LibraryName(const ClassTable& classes);

}  // namespace lumenkit::lumenform
