#pragma once

#include "frame/host/property_bag.h"
#include "frame/text.h"
#include "runtime/memory/hosted_control.h"

namespace lumenkit::windowless {

// What the container of a saved control reads. A value that cannot be converted and a negative size
// count as missing.

/// Returns the place, size and visibility. The texts of the result are empty.
memory::Placing SavedPlacing(host::PropertyBag& saved, bool userMode);
Text SavedTag(host::PropertyBag& saved);

}  // namespace lumenkit::windowless
