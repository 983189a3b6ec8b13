#pragma once

#include <string>

namespace lumenkit::testing {

struct ShellOutput {
    int status = 0;
    std::string text;  ///< of both streams
};

/// Runs a command in a shell.
ShellOutput OutputOf(const std::string& command);

}  // namespace lumenkit::testing
