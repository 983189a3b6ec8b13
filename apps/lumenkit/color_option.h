#pragma once

#include <CLI/CLI.hpp>

#include "apps/command_line/notes.h"
#include "apps/lumenkit/terminal.h"

namespace lumenkit::cli {

/// Adds --color to the program and to each command that it has so far. `color` must outlive
/// parsing.
void AddColorOption(CLI::App& program, Coloring& color);

/// Says which variables of the environment choose colours.
Section ColorVariables();

}  // namespace lumenkit::cli
