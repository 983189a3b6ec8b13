#pragma once

#include "apps/lumenkit/check/finding.h"
#include "frame/text.h"
#include "vmemo/restriction_engine.h"

namespace lumenkit::check {

/// Where a memo's saved text is beyond its limits: the first line that is too long, and the first
/// line that is one too many.
Remarks CheckMemoText(TextView text, TextLimits limits);

}  // namespace lumenkit::check
