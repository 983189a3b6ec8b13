// The groups of the property list.
#pragma once

#include <QString>
#include <cstdint>

#include "apps/lumenform/design/properties/object_property.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// In the order in which the list shows them.
enum class PropertyGroup : std::uint8_t {
    Appearance,
    Behaviour,
    Data,
    Font,
    Pictures,
    Position,
    Misc,
};

QString TitleOf(PropertyGroup group);

/// Returns the group of a property. An unknown name belongs to the group of its kind, or to Misc.
PropertyGroup GroupOf(TextView name, PropertyKind kind);

}  // namespace lumenkit::lumenform
