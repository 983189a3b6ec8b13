#pragma once

#include <string>
#include <vector>

#include "apps/command_line/manual/described_command.h"

namespace lumenkit::cli {

struct ManualPage {
    std::string name;  ///< "lumenkit-check.1"
    std::string text;  ///< in the man macros of roff
};

/// Returns the page of the program and one for each of its commands. They have no date, so that
/// they depend on nothing but the program. `version` is "lumenkit 7.1.0".
std::vector<ManualPage> ManualPages(const DescribedCommand& program, const std::string& version);

}  // namespace lumenkit::cli
