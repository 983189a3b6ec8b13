// How each rule about a whole property is mended.
#pragma once

#include <optional>

#include "apps/lumenkit/check/finding.h"
#include "forms/block.h"
#include "forms/property.h"

namespace lumenkit::check {

struct MendedProperty {
    forms::Property property;
    bool keepsPicture = false;  ///< as in Mending
};

/// Writes -1, which also selects nothing.
std::optional<MendedProperty> MendListIndex(const forms::Block& control,
                                            const forms::Property& property,
                                            const Finding& finding);
/// Writes the suggested name, unless the control has a property of this name.
std::optional<MendedProperty> MendUnreadName(const forms::Block& control,
                                             const forms::Property& property,
                                             const Finding& finding);

}  // namespace lumenkit::check
