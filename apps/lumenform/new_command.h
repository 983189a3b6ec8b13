#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::lumenform {

/// Adds "lumenform new" to the program. If the command is given, parsing runs it and sets `status`.
void AddNewCommand(CLI::App& program, int& status);

}  // namespace lumenkit::lumenform
