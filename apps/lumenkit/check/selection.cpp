#include "apps/lumenkit/check/selection.h"

#include <algorithm>

namespace lumenkit::check {

bool Selection::Takes(const Finding& finding) const {
    const auto isIn = [&](const std::vector<std::string>& names) {
        return std::ranges::find(names, finding.rule) != names.end();
    };
    return SeverityOf(finding) >= least && (only.empty() || isIn(only)) && !isIn(without);
}

}  // namespace lumenkit::check
