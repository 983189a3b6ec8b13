#pragma once

#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/properties/object_property.h"

namespace lumenkit::lumenform {

/// The properties that a control has from its container, as far as they apply to its class: (Name),
/// Left, Top, ..., Visible. They must not outlive the view and the document of the design.
std::vector<ObjectProperty> ContainerProperties(FormDesign& design, LiveControl& control);

/// The property (Name) of a control or of the form.
ObjectProperty NameProperty(FormDesign& design, forms::Block& block);

/// Whether the name is that of a property that controls have from their container.
bool IsContainers(TextView name);

}  // namespace lumenkit::lumenform
