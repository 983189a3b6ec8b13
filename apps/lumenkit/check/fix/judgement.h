#pragma once

#include <string>
#include <vector>

#include "apps/lumenkit/check/finding.h"

namespace lumenkit::check {

/// Whether the findings about a control after a mending are no worse than those before: not more
/// findings about the properties `mended`, in UTF-8, not more errors and not more errors and
/// overflows together among them, and no difference about others.
bool IsNoWorse(const Findings& before, const Findings& after,
               const std::vector<std::string>& mended);

}  // namespace lumenkit::check
