#pragma once

#include <string>

#include "apps/lumenkit/check/fix/file_fixes.h"

namespace lumenkit::check {

/// Describes a change of a text in a companion for a person. Each line begins with "# ", which no
/// program takes for a part of a diff. `companion` is the name of the file.
std::string CompanionDiff(const CompanionChange& change, const std::string& companion);

}  // namespace lumenkit::check
