#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::cli {

/// Adds "lumenkit drive" to the program. When it is chosen, parsing runs it and sets `status`.
void AddDriveCommand(CLI::App& program, int& status);

}  // namespace lumenkit::cli
