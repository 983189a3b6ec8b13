#pragma once

#include "frame/text.h"
#include "vmemo/restriction_engine.h"

namespace lumenkit {

/// Returns the limits as screen readers say them: "up to 20 characters per line, up to 3 lines".
/// Empty if there are none.
Text SpokenLimits(TextLimits limits);

}  // namespace lumenkit
