// The commands of lumenkit. Each is in a separate source file.
#pragma once

#include <CLI/CLI.hpp>

#include "apps/lumenkit/terminal.h"

namespace lumenkit::cli {

// Each function adds a command. Parsing runs the given command, which sets `status`.
// `color` is read when the command runs.
void AddCheckCommand(CLI::App& program, const Coloring& color, int& status);
void AddCompileCommand(CLI::App& program, int& status);
void AddDriveCommand(CLI::App& program, int& status);

}  // namespace lumenkit::cli
