#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::cli {

/// Adds "lumenkit check" to the program. If the command is given, parsing runs it and sets
/// `status`.
void AddCheckCommand(CLI::App& program, int& status);

}  // namespace lumenkit::cli
