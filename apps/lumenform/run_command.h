#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::form {

/// Adds "lumenform run" to the program. When it is chosen, parsing runs it and sets `status`.
void AddRunCommand(CLI::App& program, int& status);

}  // namespace lumenkit::form
