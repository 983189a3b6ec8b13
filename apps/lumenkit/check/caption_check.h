#pragma once

#include "apps/lumenkit/check/finding.h"
#include "frame/text.h"

namespace lumenkit::check {

/// Returns the mistakes in a label's caption, in the order of the text.
Remarks CheckCaption(TextView caption);

}  // namespace lumenkit::check
