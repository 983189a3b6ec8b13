// The items of list boxes and combo boxes, which forms keep in records of the companion.
#pragma once

#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/properties/object_property.h"

namespace lumenkit::lumenform {

/// Returns the properties List and ItemData of a list box or combo box; nothing for another class.
/// Their values are texts with one item or number a line. A record that would not be written with
/// the same bytes makes its property read-only, and its help says why. The properties must not
/// outlive the document of the design.
std::vector<ObjectProperty> ListProperties(FormDesign& design, forms::Block& block);

}  // namespace lumenkit::lumenform
