#include "frame/class_table.h"

#include <algorithm>

namespace lumenkit {

const ClassDescriptor* ClassTable::Find(TextView programmaticIdentifier) const {
    const std::size_t point = programmaticIdentifier.find(u'.');
    if (point == TextView::npos ||
        !SameText(programmaticIdentifier.substr(0, point), libraryName, Compare::IgnoreCase)) {
        return nullptr;
    }
    const TextView className = programmaticIdentifier.substr(point + 1);
    const auto found = std::find_if(classes.begin(), classes.end(), [&](const auto& candidate) {
        return SameText(candidate.name, className, Compare::IgnoreCase);
    });
    return found == classes.end() ? nullptr : &*found;
}

}  // namespace lumenkit
