// The interface tables as interface definitions, from which the type libraries are compiled.
#pragma once

#include <string>

#include "frame/automation/runtime_enumerations.h"
#include "frame/class_table.h"

namespace lumenkit {

/// Where the definitions lie, and what the libraries compiled from them are called.
inline constexpr const char* classesIdlFile = "lumenkit.idl";
inline constexpr const char* enumerationsIdlFile = "lumenkit_runtime.idl";
inline constexpr const char* enumerationsTypeLibraryFile = "lumenkit_runtime.tlb";

/// UTF-8 text, lines end in LF. Refers to the definitions of `classes.enumerations` as to
/// `enumerationsIdlFile` and `enumerationsTypeLibraryFile`.
std::string WriteIdl(const ClassTable& classes);

/// UTF-8 text, lines end in LF.
std::string WriteIdl(const EnumerationLibrary& library);

}  // namespace lumenkit
