// Writes the interface definitions from which the type libraries are compiled.
#pragma once

#include <string>

#include "frame/automation/runtime_enumerations.h"
#include "frame/class_table.h"

namespace lumenkit {

/// File names of the definitions and of a type library compiled from them.
inline constexpr const char* classesIdlFile = "lumenkit.idl";
inline constexpr const char* enumerationsIdlFile = "lumenkit_runtime.idl";
inline constexpr const char* enumerationsTypeLibraryFile = "lumenkit_runtime.tlb";

/// Returns the definitions of the classes, in UTF-8 with LF line ends. If `classes.enumerations` is
/// set, the definitions import `enumerationsIdlFile` and `enumerationsTypeLibraryFile`.
std::string WriteIdl(const ClassTable& classes);

/// Returns the definitions of the enumerations, in UTF-8 with LF line ends.
std::string WriteIdl(const EnumerationLibrary& library);

}  // namespace lumenkit
