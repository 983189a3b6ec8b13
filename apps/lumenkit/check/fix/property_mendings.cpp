#include "apps/lumenkit/check/fix/property_mendings.h"

#include "frame/text.h"
#include "frame/utf8.h"

namespace lumenkit::check {

std::optional<MendedProperty> MendListIndex(const forms::Block& /*control*/,
                                            const forms::Property& property,
                                            const Finding& /*finding*/) {
    MendedProperty mended{property, true};
    mended.property.Replace(-1);
    return mended;
}

std::optional<MendedProperty> MendUnreadName(const forms::Block& control,
                                             const forms::Property& property,
                                             const Finding& finding) {
    const Text name = FromUtf8(finding.suggestion);
    if (name.empty() || control.FindProperty(name) != nullptr ||
        control.FindGroup(name) != nullptr) {
        return std::nullopt;
    }
    MendedProperty mended{property, false};
    mended.property.Rename(name);
    return mended;
}

}  // namespace lumenkit::check
