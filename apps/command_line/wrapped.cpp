#include "apps/command_line/wrapped.h"

namespace lumenkit::cli {

namespace {

// Where the last column of a row begins; 0 for a line that is no row.
std::size_t LastColumn(std::string_view line) {
    const std::size_t gap = line.starts_with(' ') ? line.rfind("  ") : std::string_view::npos;
    return gap == std::string_view::npos ? 0 : gap + 2;
}

std::string FittedLine(std::string_view line) {
    if (line.size() <= terminalWidth) {
        return std::string(line);
    }
    const std::size_t column = LastColumn(line);
    return std::string(line.substr(0, column)) +
           Wrapped(line.substr(column), terminalWidth - column, column);
}

}  // namespace

std::string Wrapped(std::string_view text, std::size_t width, std::size_t indent) {
    std::string wrapped;
    std::size_t column = 0;
    while (!text.empty()) {
        const std::size_t end = text.find(' ');
        const std::string_view word = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (!wrapped.empty()) {
            const bool fits = column + 1 + word.size() <= width;
            wrapped += fits ? " " : '\n' + std::string(indent, ' ');
            column = fits ? column + 1 : 0;
        }
        wrapped += word;
        column += word.size();
    }
    return wrapped;
}

std::string FittedToTerminal(std::string_view text) {
    std::string fitted;
    for (;;) {
        const std::size_t end = text.find('\n');
        fitted += FittedLine(text.substr(0, end));
        if (end == std::string_view::npos) {
            return fitted;
        }
        fitted += '\n';
        text.remove_prefix(end + 1);
    }
}

}  // namespace lumenkit::cli
