// Scripts that complete the arguments of a program in a shell.
#pragma once

#include <string>

#include "apps/command_line/manual/described_command.h"

namespace lumenkit::cli {

std::string BashCompletion(const DescribedCommand& program);
std::string ZshCompletion(const DescribedCommand& program);
std::string FishCompletion(const DescribedCommand& program);

/// Returns the program with the command "help", which RunProgram adds to every program.
DescribedCommand WithHelp(DescribedCommand program);

}  // namespace lumenkit::cli
