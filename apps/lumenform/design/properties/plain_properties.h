#pragma once

#include <set>
#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/properties/object_property.h"

namespace lumenkit::lumenform {

// These properties must not outlive the view and the document of the design.

/// The properties of a plain control: those in its block and the usual ones of its class.
std::vector<ObjectProperty> PlainProperties(FormDesign& design, LiveControl& control);

/// The properties that a container adds to a control, such as HelpContextID, and the properties in
/// its block that are not in `known`, names in lower case.
std::vector<ObjectProperty> OtherProperties(FormDesign& design, LiveControl& control,
                                            std::set<Text> known);

/// The properties of a block that is no control: the usual ones of its class and those in it.
std::vector<ObjectProperty> BlockProperties(FormDesign& design, forms::Block& block);

/// The properties of the form.
std::vector<ObjectProperty> FormProperties(FormDesign& design);

}  // namespace lumenkit::lumenform
