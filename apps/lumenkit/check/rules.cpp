#include "apps/lumenkit/check/rules.h"

#include <algorithm>

namespace lumenkit::check {

std::string_view NameOf(Severity severity) {
    constexpr std::array<std::string_view, 3> names = {"note", "warning", "error"};
    return names.at(static_cast<std::size_t>(severity));
}

const Rule* FindRule(std::string_view name) {
    const auto* const found = std::ranges::find(allRules, name, &Rule::name);
    return found == allRules.end() ? nullptr : found;
}

Severity SeverityOf(const Finding& finding) {
    return FindRule(finding.rule)->severity;
}

}  // namespace lumenkit::check
