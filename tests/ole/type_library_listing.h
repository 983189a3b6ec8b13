// A type library as text, with all that the platform tells about it, for people and comparisons.
#pragma once

#include <string>

namespace lumenkit {

/// `file` is anything that LoadTypeLibEx takes: a .tlb file, a server, a server and the number of a
/// further library in it ("lumenkit.ocx\2"). UTF-8, lines end in LF. Throws std::runtime_error.
std::string ListTypeLibrary(const std::wstring& file);

}  // namespace lumenkit
