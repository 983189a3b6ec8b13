// A type library as text, with everything that the platform reports about it, for reading and
// comparing.
#pragma once

#include <string>

namespace lumenkit {

/// Lists the library in `file`, which is anything that LoadTypeLibEx takes: a .tlb file, a server,
/// or a server and the number of another library in it ("lumenkit.ocx\2"). The text is UTF-8, with
/// lines that end in LF. Throws std::runtime_error.
std::string ListTypeLibrary(const std::wstring& file);

}  // namespace lumenkit
