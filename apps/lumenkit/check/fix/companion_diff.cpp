#include "apps/lumenkit/check/fix/companion_diff.h"

#include <cstddef>
#include <sstream>

#include "apps/command_line/spelling/printable.h"
#include "apps/difference/unified_diff.h"
#include "apps/lumenkit/check/finding_text.h"
#include "frame/text.h"
#include "frame/utf8.h"

namespace lumenkit::check {

namespace {

// The text with a line break after each separator of the caption.
std::string InLines(TextView text) {
    constexpr TextView separator = u"|CR|";
    Text lines;
    while (!text.empty()) {
        const bool isSeparator =
            SameText(text.substr(0, separator.size()), separator, Compare::IgnoreCase);
        const std::size_t length = isSeparator ? separator.size() : 1;
        lines += text.substr(0, length);
        lines += isSeparator ? TextView(u"\n") : TextView();
        text.remove_prefix(length);
    }
    return ToUtf8(lines) + '\n';
}

}  // namespace

std::string CompanionDiff(const CompanionChange& change, const std::string& companion) {
    std::istringstream lines(
        difference::UnifiedDiff("-", InLines(change.before), InLines(change.after)));
    std::string described =
        "# " + Printable(change.first.file) + ':' + std::to_string(change.first.place.line) + ": " +
        Printable(SubjectOf(change.first)) + ", in " + Printable(companion) + '\n';
    std::string line;
    for (int head = 0; head < 2; ++head) {
        std::getline(lines, line);
    }
    while (std::getline(lines, line)) {
        described += "# " + Printable(line) + '\n';
    }
    return described;
}

}  // namespace lumenkit::check
