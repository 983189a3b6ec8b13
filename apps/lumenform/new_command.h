#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::form {

/// Adds "lumenform new" to the program. When it is chosen, parsing runs it and sets `status`.
void AddNewCommand(CLI::App& program, int& status);

}  // namespace lumenkit::form
