#pragma once

#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/properties/object_property.h"

namespace lumenkit::lumenform {

/// The properties of a menu: the usual ones and any others in its block. An assignment that makes
/// a menu break a rule (see MenuProblems) raises 380. They must not outlive the document.
std::vector<ObjectProperty> MenuProperties(FormDesign& design, forms::Block& menu);

/// The choices for the property Shortcut of a menu, of which the first one is no shortcut.
/// `present` is among them, even if it is not usually offered.
std::vector<Choice> ShortcutChoices(TextView present);

}  // namespace lumenkit::lumenform
