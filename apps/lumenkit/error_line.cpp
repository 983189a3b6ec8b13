#include "apps/lumenkit/error_line.h"

#include <iostream>

#include "apps/command_line/spelling/printable.h"

namespace lumenkit::cli {

void WriteErrorLine(std::string_view text, Coloring color) {
    const bool colored = TakesColors(Stream::Errors, color);
    std::cerr << (colored ? "\x1b[31m" : "") << "lumenkit: " << Printable(text)
              << (colored ? "\x1b[0m" : "") << '\n';
}

}  // namespace lumenkit::cli
