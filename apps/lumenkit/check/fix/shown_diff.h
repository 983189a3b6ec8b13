#pragma once

#include <string>
#include <string_view>

namespace lumenkit::check {

/// Returns a diff as a terminal may show it: without control characters, with or without colours.
std::string DiffForTerminal(std::string_view diff, bool isColored);

}  // namespace lumenkit::check
