#include "runtime/ole/module/identifiers.h"

#include <algorithm>
#include <array>

namespace lumenkit::ole {

std::wstring TextOfGuid(REFGUID guid) {
    std::array<wchar_t, 40> text = {};
    StringFromGUID2(guid, text.data(), static_cast<int>(text.size()));
    return text.data();
}

const ClassDescriptor* FindClass(const ClassTable& classes, REFCLSID classId) {
    const auto found = std::ranges::find_if(classes.classes, [&](const ClassDescriptor& type) {
        return type.uniqueIdentifier != UniqueIdentifier() &&
               GuidOf(type.uniqueIdentifier) == classId;
    });
    return found == classes.classes.end() ? nullptr : &*found;
}

Text ProgrammaticIdentifier(const ClassTable& classes, const ClassDescriptor& type) {
    Text name(classes.libraryName);
    name += u'.';
    name += type.name;
    return name;
}

}  // namespace lumenkit::ole
