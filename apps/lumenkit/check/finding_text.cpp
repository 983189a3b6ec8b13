#include "apps/lumenkit/check/finding_text.h"

#include "apps/command_line/spelling/suggestion.h"

namespace lumenkit::check {

std::string SubjectOf(const Finding& finding) {
    const bool hasBoth = !finding.control.empty() && !finding.property.empty();
    return finding.control + (hasBoth ? "." : "") + finding.property;
}

std::string WholeMessage(const Finding& finding) {
    const std::string subject = SubjectOf(finding);
    return (subject.empty() ? "" : subject + ": ") + finding.message +
           DidYouMean(finding.suggestion);
}

}  // namespace lumenkit::check
