// What the designers' own classes have, whether a form says it or not.
#pragma once

#include <cstdint>
#include <span>
#include <variant>

#include "apps/lumenform/design/properties/setting.h"
#include "frame/text.h"

namespace lumenkit::form {

/// A property that a class has. Colours have the usual ones of the class where nothing is said,
/// fonts that of what the control lies in.
struct UsualProperty {
    TextView name;
    TextView help = {};
    SettingKind kind = SettingKind::Text;
    /// Its value where nothing is said; none: it is always said, or unknown.
    std::variant<std::monostate, bool, std::int32_t, TextView> otherwise = {};
    std::span<const TextView> choices = {};  ///< named by their numbers, from 0
};

/// The usual properties of a class, "VB.TextBox", besides those that containers give to all
/// controls. None for a class that is not known.
std::span<const UsualProperty> UsualPropertiesOf(TextView className);

/// What a property of this name is in every class that has it; null where that is not known.
const UsualProperty* FindCommonProperty(TextView name);

}  // namespace lumenkit::form
