// The properties of the designer's built-in classes, whether or not a form has values for them.
#pragma once

#include <cstdint>
#include <variant>
#include <vector>

#include "apps/lumenform/design/properties/property_choices.h"
#include "apps/lumenform/design/properties/stored_property.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// A property of a class. Colours default to those of the class, fonts to that of the container.
struct UsualProperty {
    TextView name;
    const char* help = "";
    StoredType type = StoredType::Text;
    /// The default value; monostate if the property has none or it is unknown.
    std::variant<std::monostate, bool, std::int32_t, TextView> otherwise = {};
    ChoiceLabels labels = {};  ///< of an enumeration
};

/// The usual properties of a class such as "VB.TextBox", without the properties that containers
/// add to all controls. Empty for an unknown class.
std::vector<UsualProperty> UsualPropertiesOf(TextView className);

/// Returns the property that has the same meaning in every class, or null if there is none of this
/// name.
const UsualProperty* FindCommonProperty(TextView name);

}  // namespace lumenkit::lumenform
