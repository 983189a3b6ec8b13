#pragma once

#include <vector>

#include "apps/lumenform/design/model/design.h"
#include "apps/lumenform/design/properties/setting.h"

namespace lumenkit::lumenform {

// These settings must not outlive the view and the document of the design.

/// The properties that a control has from its container, as far as they apply to its class: (Name),
/// Left, Top, ..., Visible.
std::vector<Setting> ContainerSettings(Design& design, LiveControl& control);

/// The properties of a plain control: those in its block and the usual ones of its class.
std::vector<Setting> PlainSettings(Design& design, LiveControl& control);

/// The same for the form.
std::vector<Setting> FormSettings(Design& design);

}  // namespace lumenkit::lumenform
