// What the programs have in common: how they are called, and how they answer a wrong call.
#pragma once

#include <functional>
#include <string>

#include <CLI/CLI.hpp>

namespace lumenkit::cli {

/// Prepares the program: help that fits 80 columns, and --version with name and version. Call it
/// before adding commands.
void SetUpProgram(CLI::App& program, const std::string& version);

/// Returns the command that stands for a first argument that is no command, such as a file name, or
/// an empty string.
using ImpliedCommand = std::function<std::string(const std::string& argument)>;

/// Runs the command that the arguments name, and returns `status` as it left it. "help COMMAND" is
/// the same as "COMMAND --help". A wrong call is answered on the standard error stream, with the
/// nearest right word, and returns exitUnusable.
int RunProgram(CLI::App& program, int argc, char** argv, const int& status,
               const ImpliedCommand& implied = {});

}  // namespace lumenkit::cli
