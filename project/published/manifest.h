// Writes the manifest of the side-by-side assembly. A program whose manifest refers to the assembly
// can create the classes without registration.
#pragma once

#include <string>

#include "frame/class_table.h"

namespace lumenkit {

inline constexpr const char* manifestFile = "lumenkit.manifest";

/// Returns the manifest of an assembly with two files: the component server `serverFile`, which
/// contains the type library of the classes, and the type library of `classes.enumerations`. The
/// text is UTF-8 with LF line ends.
std::string WriteManifest(const ClassTable& classes, const std::string& serverFile);

}  // namespace lumenkit
