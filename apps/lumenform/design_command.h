#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::form {

/// Adds the command "design" to the program, which also runs when no command is given.
void AddDesignCommand(CLI::App& program, int& status);

}  // namespace lumenkit::form
