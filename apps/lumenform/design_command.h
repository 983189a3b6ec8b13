#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::lumenform {

/// Adds "lumenform design" to the program. The command also runs if no command is given.
void AddDesignCommand(CLI::App& program, int& status);

}  // namespace lumenkit::lumenform
