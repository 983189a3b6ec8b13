#pragma once

#include "apps/lumenkit/check/finding.h"
#include "frame/text.h"

namespace lumenkit::check {

/// What is wrong with a label's caption, from front to back.
Remarks CheckCaption(TextView caption);

}  // namespace lumenkit::check
