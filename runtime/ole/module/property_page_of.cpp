#include "runtime/ole/module/property_page_of.h"

#include <algorithm>

namespace lumenkit::ole {

const ClassDescriptor* PropertyPageOf(const ClassTable& classes, const ClassDescriptor& type) {
    const auto found = std::ranges::find_if(classes.classes, [&](const ClassDescriptor& each) {
        return each.kind == ClassKind::PropertyPage && each.name == type.propertyPage;
    });
    return found == classes.classes.end() ? nullptr : &*found;
}

bool IsOnPage(const ClassDescriptor& type, DISPID property) {
    const Member* member = type.interfaceTable->Find(static_cast<std::int32_t>(property));
    return member != nullptr &&
           std::ranges::find(type.pageProperties, member->name) != type.pageProperties.end();
}

}  // namespace lumenkit::ole
