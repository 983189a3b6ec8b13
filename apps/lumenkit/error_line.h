#pragma once

#include <string_view>

#include "apps/lumenkit/terminal.h"

namespace lumenkit::cli {

/// Writes "lumenkit: text" to the standard error stream, in red if it takes colours.
void WriteErrorLine(std::string_view text, Coloring color);

}  // namespace lumenkit::cli
