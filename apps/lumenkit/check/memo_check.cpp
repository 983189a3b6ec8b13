#include "apps/lumenkit/check/memo_check.h"

#include <cstddef>
#include <string>

#include "apps/lumenkit/check/rules.h"
#include "vmemo/line_break_scanner.h"

namespace lumenkit::check {

namespace {

bool Fits(TextView text, TextLimits limits) {
    return Restrict(text, limits, RestrictionMode::Plain).Fits();
}

struct Line {
    std::size_t number = 0;  // from 1
    std::size_t begin = 0;   // offset in UTF-16 units
    std::size_t length = 0;
};

// Returns the first line for which `stop` is true, or the last line.
template <typename Stop>
Line FindLine(TextView text, Stop stop) {
    LineBreakScanner scanner(text);
    Line line;
    for (;;) {
        ++line.number;
        const std::size_t end = scanner.Next(line.begin);
        line.length = end - line.begin;
        if (stop(line) || end == text.size()) {
            return line;
        }
        line.begin = end + crLf.size();
    }
}

// Describes the effect of the first edit on a text over its limits, which loading does not cut. A
// refused edit restores the last accepted text, and at that moment there is none.
std::string Outlook(TextView text, TextLimits limits) {
    const bool refuses = Restrict(text, limits, RestrictionMode::Apply).refused;
    return refuses ? "; loading does not cut the text, and the first edit after which it still "
                     "exceeds a limit empties the box"
                   : "; loading does not cut the text, but the first edit does";
}

}  // namespace

Remarks CheckMemoText(TextView text, TextLimits limits) {
    Remarks remarks;
    const auto add = [&](std::size_t offset, const std::string& message) {
        remarks.push_back(
            {rules::textOverLimits.name, offset, message + Outlook(text, limits), {}});
    };
    if (!Fits(text, {.maxCharsPerLine = limits.maxCharsPerLine})) {
        const auto most = static_cast<std::size_t>(limits.maxCharsPerLine);
        const Line line = FindLine(text, [&](const Line& at) { return at.length > most; });
        add(line.begin + most, "line " + std::to_string(line.number) + " has " +
                                   std::to_string(line.length) +
                                   " characters, but MaxCharsPerLine is " + std::to_string(most));
    }
    if (!Fits(text, {.maxLines = limits.maxLines})) {
        const auto most = static_cast<std::size_t>(limits.maxLines);
        const Line line = FindLine(text, [&](const Line& at) { return at.number == most; });
        add(line.begin + line.length, "the text continues after line " + std::to_string(most) +
                                          ", but MaxLines is " + std::to_string(most));
    }
    return remarks;
}

}  // namespace lumenkit::check
