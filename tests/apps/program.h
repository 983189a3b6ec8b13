// The built command-line program, run as a person would run it.
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

/// The same on a terminal of its own, which is the program's input, output and error stream alike:
/// `output` is all that it would show. `variables` go before the program, as in a shell; TERM is
/// xterm and NO_COLOR is not set unless they say so.
Outcome RunOnTerminal(const std::string& arguments, const std::string& variables = "");

/// A file with these bytes for the test at hand; its path needs no quoting.
std::string FileWith(const std::string& bytes);

}  // namespace lumenkit::testing
