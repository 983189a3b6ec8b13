#include "apps/lumenkit/check/fix/shown_diff.h"

#include <sstream>

#include "apps/command_line/spelling/printable.h"

namespace lumenkit::check {

namespace {

const char* ColorOf(std::string_view line) {
    if (line.starts_with("---") || line.starts_with("+++")) {
        return "\x1b[1m";
    }
    switch (line.empty() ? ' ' : line.front()) {
        case '-':
            return "\x1b[31m";
        case '+':
            return "\x1b[32m";
        case '@':
            return "\x1b[36m";
        default:
            return "";
    }
}

}  // namespace

std::string DiffForTerminal(std::string_view diff, bool isColored) {
    std::istringstream lines{std::string(diff)};
    std::string shown;
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        const std::string color = isColored ? ColorOf(line) : "";
        shown += color + Printable(line) + (color.empty() ? "" : "\x1b[0m") + '\n';
    }
    return shown;
}

}  // namespace lumenkit::check
