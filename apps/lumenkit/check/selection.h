#pragma once

#include <string>
#include <vector>

#include "apps/lumenkit/check/finding.h"
#include "apps/lumenkit/check/rules.h"

namespace lumenkit::check {

/// The rules that a run applies. All names are those of rules.
struct Selection {
    std::vector<std::string> only;     ///< if empty, all rules
    std::vector<std::string> without;  ///< these are left out
    Severity least = Severity::Note;

    bool Takes(const Finding& finding) const;
};

}  // namespace lumenkit::check
