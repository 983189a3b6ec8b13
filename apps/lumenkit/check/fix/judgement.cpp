#include "apps/lumenkit/check/fix/judgement.h"

#include <algorithm>
#include <string_view>
#include <tuple>

#include "apps/lumenkit/check/rules.h"

namespace lumenkit::check {

namespace {

// Whether the control reports an error to its user, with the measures of the check.
bool IsReported(const Finding& finding) {
    return SeverityOf(finding) == Severity::Error || finding.rule == rules::drawingOverflow.name;
}

struct Account {
    explicit Account(const Findings& findings, const std::vector<std::string>& mended) {
        for (const Finding& finding : findings) {
            if (std::ranges::find(mended, finding.property) == mended.end()) {
                others.emplace_back(finding.rule, finding.property, finding.message);
            } else {
                ++all;
                errors += SeverityOf(finding) == Severity::Error ? 1 : 0;
                reported += IsReported(finding) ? 1 : 0;
            }
        }
        std::ranges::sort(others);
    }

    std::size_t all = 0;
    std::size_t errors = 0;
    std::size_t reported = 0;
    std::vector<std::tuple<std::string_view, std::string, std::string>> others;
};

}  // namespace

bool IsNoWorse(const Findings& before, const Findings& after,
               const std::vector<std::string>& mended) {
    const Account old(before, mended);
    const Account now(after, mended);
    return now.all <= old.all && now.errors <= old.errors && now.reported <= old.reported &&
           now.others == old.others;
}

}  // namespace lumenkit::check
