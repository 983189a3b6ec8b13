#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::cli {

/// Adds "lumenkit compile" to the program. If the command is given, parsing runs it and sets
/// `status`.
void AddCompileCommand(CLI::App& program, int& status);

}  // namespace lumenkit::cli
