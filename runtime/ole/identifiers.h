// The tables' identifiers as the platform's.
#pragma once

#include <cstring>
#include <string>

#include "frame/class_table.h"
#include "frame/unique_identifier.h"
#include "runtime/ole/ole_header.h"

namespace lumenkit::ole {

inline GUID GuidOf(const UniqueIdentifier& identifier) {
    GUID guid = {.Data1 = identifier.data1,
                 .Data2 = identifier.data2,
                 .Data3 = identifier.data3,
                 .Data4 = {}};
    std::memcpy(&guid.Data4[0], identifier.data4.data(), sizeof guid.Data4);
    return guid;
}

/// "{8E90C363-D415-47AA-AFDF-C215C3C33F77}".
std::wstring TextOfGuid(REFGUID guid);

/// The class with this identifier; null when the table has none.
const ClassDescriptor* FindClass(const ClassTable& classes, REFCLSID classId);

/// "lumenkit.VLabel".
Text ProgrammaticIdentifier(const ClassTable& classes, const ClassDescriptor& type);

}  // namespace lumenkit::ole
