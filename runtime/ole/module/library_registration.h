// The registry entries of type libraries.
//
// A client looks up a library by identifier, version, locale and bitness. A library that is
// registered for one locale only is not found by clients that request another one, so it is also
// registered for the neutral locale, which every request falls back to.
#pragma once

#include <string>

#include "frame/class_table.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// A type library in the file of a component.
struct LibraryEntry {
    GUID identifier;
    WORD majorVersion;
    WORD minorVersion;
    LCID locale;
    std::wstring file;
    std::wstring part;  ///< empty for the file's first library, "\2" for its second one

    std::wstring Path() const { return file + part; }
};

/// Registers the library for its own locale and for the neutral one. Raises a ComError.
void RegisterLibrary(const LibraryEntry& library);

/// Removes the entries of this bitness that name the file. The entries that all bitnesses and
/// copies share are removed with the last of them. Missing entries are not an error.
void UnregisterLibrary(const LibraryEntry& library);

}  // namespace lumenkit::ole
