#include "apps/lumenkit/terminal.h"

#include <cstdlib>
#include <string_view>

#include <unistd.h>

namespace lumenkit::cli {

namespace {

// Thread-safe: nothing changes the environment while the program runs.
std::string_view Environment(const char* name) {
    const char* const value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
    return value == nullptr ? std::string_view() : value;
}

}  // namespace

bool IsTerminal(Stream stream) {
    return isatty(stream == Stream::Output ? STDOUT_FILENO : STDERR_FILENO) == 1;
}

bool TakesColors(Stream stream, Coloring color) {
    if (color != Coloring::Auto) {
        return color == Coloring::Always;
    }
    if (!Environment("NO_COLOR").empty()) {
        return false;
    }
    const std::string_view force = Environment("CLICOLOR_FORCE");
    return (!force.empty() && force != "0") ||
           (IsTerminal(stream) && Environment("TERM") != "dumb");
}

}  // namespace lumenkit::cli
