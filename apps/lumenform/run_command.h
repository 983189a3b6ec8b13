#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::lumenform {

/// Adds "lumenform run" to the program. If the command is given, parsing runs it and sets `status`.
void AddRunCommand(CLI::App& program, int& status);

}  // namespace lumenkit::lumenform
