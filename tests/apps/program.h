// Runs the built command-line program as a user does.
#pragma once

#include <string>

namespace lumenkit::testing {

struct Outcome {
    int status = 0;
    std::string output;
    std::string errors;
};

/// Runs the program with `arguments`, written as in a shell, and `input` as its standard input.
Outcome RunProgram(const std::string& arguments, const std::string& input = "");

/// The same on a separate terminal, which is the program's input, output and error stream. `output`
/// is everything that the terminal would show. `variables` precede the program, as in a shell. TERM
/// is xterm, NO_COLOR and CLICOLOR_FORCE are not set unless `variables` set them.
Outcome RunOnTerminal(const std::string& arguments, const std::string& variables = "");

/// Writes a file with these bytes for the current test and returns its path, which needs no
/// quoting.
std::string FileWith(const std::string& bytes);

}  // namespace lumenkit::testing
