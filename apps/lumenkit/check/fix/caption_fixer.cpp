#include "apps/lumenkit/check/fix/caption_fixer.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <string_view>
#include <utility>

#include "apps/lumenkit/check/fix/judgement.h"
#include "apps/lumenkit/check/fix/mending_table.h"
#include "frame/utf8.h"

namespace lumenkit::check {

namespace {

// How much text is tried for a caption, in units. Only a caption with thousands of mendings that
// must not be made needs more; it keeps some findings that could be mended.
constexpr std::size_t mostWork = 1'000'000;
constexpr std::size_t leastWorkOfTry = 100;

std::size_t CountOf(std::string_view rule, const Findings& findings) {
    return static_cast<std::size_t>(std::ranges::count(findings, rule, &Finding::rule));
}

bool AreApart(const TextEdits& before, const TextEdits& after) {
    return before.back().end <= after.front().begin;
}

}  // namespace

Findings CaptionFixer::Fix(const Findings& findings) {
    now_ = Look();
    work_ = 0;
    Findings fixed;
    FixParts(AttemptsFor(findings, false), fixed);
    FixParts(AttemptsFor(findings, true), fixed);
    return fixed;
}

CaptionFixer::State CaptionFixer::Look() const {
    return {holder_.Get(), holder_.Check(), holder_.Drawn()};
}

std::optional<CaptionFixer::Attempt> CaptionFixer::AttemptFor(const Finding& finding,
                                                              const CaptionOutline& outline) const {
    const RuleMending* const rule = FindMending(finding.rule);
    if (rule == nullptr || rule->ofCaption == nullptr || !finding.offset) {
        return std::nullopt;
    }
    const Text suggestion = FromUtf8(finding.suggestion);
    std::optional<Mending> mending =
        rule->ofCaption({now_.caption, outline, *finding.offset, suggestion});
    if (!mending || (scope_ == FixScope::Safe && !mending->keepsPicture)) {
        return std::nullopt;
    }
    return Attempt{finding, *std::move(mending)};
}

// In the order of the text, without overlaps: of two mendings of one command, the first.
CaptionFixer::Attempts CaptionFixer::AttemptsFor(const Findings& findings, bool areAboutAll) const {
    const CaptionOutline outline = OutlineOf(now_.caption);
    Attempts attempts;
    for (const Finding& finding : findings) {
        const RuleMending* const rule = FindMending(finding.rule);
        if (rule == nullptr || rule->isAboutAll != areAboutAll) {
            continue;
        }
        if (std::optional<Attempt> attempt = AttemptFor(finding, outline)) {
            attempts.push_back(*std::move(attempt));
        }
    }
    std::ranges::stable_sort(
        attempts, {}, [](const Attempt& attempt) { return attempt.mending.edits.front().begin; });
    Attempts apart;
    for (Attempt& attempt : attempts) {
        if (apart.empty() || AreApart(apart.back().mending.edits, attempt.mending.edits)) {
            apart.push_back(std::move(attempt));
        }
    }
    return apart;
}

// Tries all at once, and otherwise each half. The later half first: then the places of the other
// one stay right.
void CaptionFixer::FixParts(Attempts attempts, Findings& fixed) {
    if (attempts.empty() || work_ > mostWork) {
        return;
    }
    if (Try(attempts)) {
        for (Attempt& attempt : attempts) {
            fixed.push_back(std::move(attempt.finding));
        }
        return;
    }
    if (attempts.size() > 1) {
        const auto middle = attempts.begin() + static_cast<std::ptrdiff_t>(attempts.size() / 2);
        Attempts later(std::make_move_iterator(middle), std::make_move_iterator(attempts.end()));
        attempts.erase(middle, attempts.end());
        FixParts(std::move(later), fixed);
        FixParts(std::move(attempts), fixed);
    }
}

bool CaptionFixer::Try(const Attempts& attempts) {
    work_ += now_.caption.size() + leastWorkOfTry;
    TextEdits edits;
    for (const Attempt& attempt : attempts) {
        edits.insert(edits.end(), attempt.mending.edits.begin(), attempt.mending.edits.end());
    }
    holder_.Set(Edited(now_.caption, edits));
    State after = Look();
    if (IsAccepted(attempts, edits, after)) {
        now_ = std::move(after);
        return true;
    }
    holder_.Set(now_.caption);
    return false;
}

// A finding is gone if its rule has fewer findings, or if the rule finds nothing at its place.
bool CaptionFixer::IsAccepted(const Attempts& attempts, const TextEdits& edits,
                              const State& after) const {
    if (!IsNoWorse(now_.drawn, after.drawn, scope_ == FixScope::Safe) ||
        !IsNoWorse(now_.findings, after.findings, {holder_.Property()})) {
        return false;
    }
    std::map<std::string_view, std::set<std::size_t>> places;
    for (const Attempt& attempt : attempts) {
        places[attempt.finding.rule].insert(OffsetAfter(edits, *attempt.finding.offset));
    }
    return std::ranges::all_of(places, [&](const auto& mended) {
        const std::string_view rule = mended.first;
        const std::set<std::size_t>& offsets = mended.second;
        const bool areFewer =
            CountOf(rule, after.findings) + offsets.size() <= CountOf(rule, now_.findings);
        return areFewer || std::ranges::none_of(after.findings, [&](const Finding& finding) {
                   return finding.rule == rule && offsets.contains(finding.offset.value_or(0));
               });
    });
}

}  // namespace lumenkit::check
