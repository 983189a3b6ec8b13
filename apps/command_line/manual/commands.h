// The commands about a program itself. Programs add them after all other commands.
#pragma once

#include <CLI/CLI.hpp>

namespace lumenkit::cli {

/// Adds "completion SHELL", which prints the script for a shell.
void AddCompletionCommand(CLI::App& program, int& status);

/// Adds "write-manual FOLDER" for installations, which help does not show. It writes the manual
/// pages into FOLDER/man1 and the completions into FOLDER/bash, FOLDER/zsh and FOLDER/fish.
void AddWriteManualCommand(CLI::App& program, int& status);

}  // namespace lumenkit::cli
