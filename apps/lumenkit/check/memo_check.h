#pragma once

#include "apps/lumenkit/check/finding.h"
#include "frame/text.h"
#include "vmemo/restriction_engine.h"

namespace lumenkit::check {

/// Checks a memo's saved text against its limits. Reports the first line that is too long and the
/// first line over the maximum number.
Remarks CheckMemoText(TextView text, TextLimits limits);

}  // namespace lumenkit::check
