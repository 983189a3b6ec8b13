#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::cli {

/// Adds "lumenkit drive" to the program. If the command is given, parsing runs it and sets
/// `status`.
void AddDriveCommand(CLI::App& program, int& status);

}  // namespace lumenkit::cli
