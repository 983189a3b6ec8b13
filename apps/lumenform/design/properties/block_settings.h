#pragma once

#include <vector>

#include "apps/lumenform/design/model/design.h"
#include "apps/lumenform/design/properties/setting.h"

namespace lumenkit::form {

// The settings below must not outlive the design's view and document.

/// What a control has from what it lies in: (Name), Left, Top, ..., Visible, as far as its class
/// has it.
std::vector<Setting> ContainerSettings(Design& design, LiveControl& control);

/// The properties of a plain control: those that stand in its block, and the usual ones of its
/// class.
std::vector<Setting> PlainSettings(Design& design, LiveControl& control);

/// The same for the form.
std::vector<Setting> FormSettings(Design& design);

}  // namespace lumenkit::form
