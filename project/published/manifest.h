// The classes as a side-by-side assembly: a program whose manifest names it may create them though
// they are not registered.
#pragma once

#include <string>

#include "frame/class_table.h"

namespace lumenkit {

inline constexpr const char* manifestFile = "lumenkit.manifest";

/// Of the assembly that consists of one file, the component server `serverFile`, which holds the
/// type library as its first and that of `classes.enumerations` as its second. UTF-8, lines end in
/// LF.
std::string WriteManifest(const ClassTable& classes, const std::string& serverFile);

}  // namespace lumenkit
