// The commands of lumenform. Each is in a separate source file.
#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::lumenform {

// Each function adds a command. Parsing runs the given command, which sets `status`.

/// Also runs the command if no command is given.
void AddDesignCommand(CLI::App& program, int& status);
void AddNewCommand(CLI::App& program, int& status);
void AddRenderCommand(CLI::App& program, int& status);
void AddRunCommand(CLI::App& program, int& status);

}  // namespace lumenkit::lumenform
