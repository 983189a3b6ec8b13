#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::lumenform {

/// Adds "lumenform render" to the program. If the command is given, parsing runs it and sets
/// `status`.
void AddRenderCommand(CLI::App& program, int& status);

}  // namespace lumenkit::lumenform
