// Conversion of the tables' identifiers to those of the platform.
#pragma once

#include <cstring>
#include <string>

#include "frame/class_table.h"
#include "frame/unique_identifier.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

inline GUID GuidOf(const UniqueIdentifier& identifier) {
    GUID guid = {.Data1 = identifier.data1,
                 .Data2 = identifier.data2,
                 .Data3 = identifier.data3,
                 .Data4 = {}};
    std::memcpy(&guid.Data4[0], identifier.data4.data(), sizeof guid.Data4);
    return guid;
}

/// Returns a text such as "{8E90C363-D415-47AA-AFDF-C215C3C33F77}".
std::wstring TextOfGuid(REFGUID guid);

/// Returns the class with this identifier, or null if the table does not contain it.
const ClassDescriptor* FindClass(const ClassTable& classes, REFCLSID classId);

/// Returns a text such as "lumenkit.VLabel".
Text ProgrammaticIdentifier(const ClassTable& classes, const ClassDescriptor& type);

}  // namespace lumenkit::ole
