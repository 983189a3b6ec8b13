#include "apps/lumenkit/check/fix/file_fixes.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <variant>

#include "apps/lumenkit/check/exceptions.h"
#include "apps/lumenkit/check/file_checks.h"
#include "apps/lumenkit/check/fix/caption_holder.h"
#include "apps/lumenkit/check/fix/drawn_control.h"
#include "apps/lumenkit/check/fix/judgement.h"
#include "apps/lumenkit/check/fix/mending_table.h"
#include "forms/controls.h"
#include "forms/literal.h"
#include "frame/utf8.h"

namespace lumenkit::check {

namespace {

// A mending can lead to another one: |Blod=yes|, |bold:yes|, |bold:1|. Few steps are enough for
// all; the limit ends what should never happen, mendings in a circle.
constexpr int mostRounds = 20;

// Calls `fix` until it mends nothing more. Returns all that it mended.
template <typename Fix>
Findings Repeated(const Fix& fix) {
    Findings all;
    for (int round = 0; round < mostRounds; ++round) {
        Findings fixed = fix();
        if (fixed.empty()) {
            break;
        }
        std::ranges::stable_sort(fixed, [](const Finding& left, const Finding& right) {
            return std::pair(left.place.line, left.place.column) <
                   std::pair(right.place.line, right.place.column);
        });
        std::ranges::move(fixed, std::back_inserter(all));
    }
    return all;
}

}  // namespace

FormFixer::FormFixer(const forms::Document& document, const ClassTable& classes, FixOptions options)
    : document_(document), classes_(classes), options_(std::move(options)) {
    for (forms::Block* const block : forms::AllControls(document.Root())) {
        AddSlots(*block);
    }
}

void FormFixer::AddSlots(forms::Block& block) {
    const ClassDescriptor* const type = classes_.Find(block.ClassName());
    if (type == nullptr || type->kind != ClassKind::Control) {
        return;
    }
    for (const forms::Block::Item& item : block.Items()) {
        if (const auto* property = std::get_if<std::unique_ptr<forms::Property>>(&item)) {
            slots_.emplace((*property)->NamePlace().line,
                           Slot{&block, type, property->get(), **property});
        }
    }
}

Findings FormFixer::Fix() {
    return Repeated([&] { return FixOnce(); });
}

Findings FormFixer::Check() const {
    Findings findings = CheckForm(document_, classes_);
    ApplyComments(document_, findings);
    return options_.select(std::move(findings));
}

Findings FormFixer::FixOnce() {
    std::map<std::size_t, Findings> byLine;
    for (Finding& finding : Check()) {
        if (FindMending(finding.rule) != nullptr && slots_.contains(finding.place.line)) {
            byLine[finding.place.line].push_back(std::move(finding));
        }
    }
    Findings fixed;
    for (const auto& [line, findings] : byLine) {
        for (Finding& finding : FixSlot(slots_.at(line), findings)) {
            firstFixed_.emplace(line, finding);
            fixed.push_back(std::move(finding));
        }
    }
    return fixed;
}

Findings FormFixer::FixSlot(Slot& slot, const Findings& findings) const {
    Findings fixed = FixCaption(slot, findings);
    for (const Finding& finding : findings) {
        if (fixed.empty() && FixProperty(slot, finding)) {
            fixed.push_back(finding);
        }
    }
    return fixed;
}

Findings FormFixer::FixCaption(const Slot& slot, const Findings& findings) const {
    const bool isText = std::ranges::any_of(
        findings, [](const Finding& finding) { return finding.offset.has_value(); });
    if (!isText) {
        return {};
    }
    SavedCaption caption(document_, *slot.block, *slot.type, *slot.property, slot.first);
    return CaptionFixer(caption, options_.scope).Fix(findings);
}

bool FormFixer::FixProperty(Slot& slot, const Finding& finding) const {
    const RuleMending* const rule = FindMending(finding.rule);
    if (rule->ofProperty == nullptr) {
        return false;
    }
    const bool isSafe = options_.scope == FixScope::Safe;
    std::optional<MendedProperty> mended = rule->ofProperty(*slot.block, *slot.property, finding);
    if (!mended || (isSafe && !mended->keepsPicture)) {
        return false;
    }
    const std::vector<Text> names = {slot.property->Name(), mended->property.Name()};
    const std::vector<std::string> inFindings = {ToUtf8(names.front()), ToUtf8(names.back())};
    const auto draw = [&] { return Draw(document_, *slot.block, *slot.type, names); };
    const auto check = [&] { return CheckOneControl(document_, *slot.block, *slot.type); };
    const Findings findings = check();
    const DrawnControl drawn = draw();
    forms::Property before = *slot.property;
    slot.block->Replace(*slot.property, std::move(mended->property));
    const Findings after = check();
    const bool isGone = std::ranges::none_of(after, [&](const Finding& other) {
        return other.rule == finding.rule && other.place.line == finding.place.line;
    });
    if (isGone && IsNoWorse(findings, after, inFindings) && IsNoWorse(drawn, draw(), isSafe)) {
        slot.first.Rename(slot.property->Name());
        return true;
    }
    slot.block->Replace(*slot.property, std::move(before));
    return false;
}

std::vector<CompanionChange> FormFixer::TakeBackCompanionTexts() {
    std::vector<CompanionChange> changes;
    for (const auto& [line, finding] : firstFixed_) {
        const Slot& slot = slots_.at(line);
        if (std::holds_alternative<forms::Reference>(slot.first.Literal())) {
            const Text after = document_.TextOf(*slot.property);
            slot.block->Replace(*slot.property, slot.first);
            changes.push_back({finding, document_.TextOf(*slot.property), after});
        }
    }
    return changes;
}

FixedCaption FixCaptionFile(const std::string& name, TextView caption, const ClassTable& classes,
                            const FixOptions& options) {
    LooseCaption holder(caption, classes);
    FixedCaption fixed;
    fixed.fixed = Repeated([&] {
        const Findings findings = options.select(CheckCaptionFile(name, holder.Get()));
        return findings.empty() ? Findings() : CaptionFixer(holder, options.scope).Fix(findings);
    });
    fixed.caption = holder.Get();
    return fixed;
}

}  // namespace lumenkit::check
