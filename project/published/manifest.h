// The classes as a side-by-side assembly: a program whose manifest names it may create them though
// they are not registered.
#pragma once

#include <string>

#include "frame/class_table.h"

namespace lumenkit {

inline constexpr const char* manifestFile = "lumenkit.manifest";

/// Of the assembly that consists of the component server `serverFile`, which holds its type
/// library, and the type library of `classes.enumerations`. UTF-8, lines end in LF.
std::string WriteManifest(const ClassTable& classes, const std::string& serverFile);

}  // namespace lumenkit
