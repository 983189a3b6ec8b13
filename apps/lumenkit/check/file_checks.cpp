#include "apps/lumenkit/check/file_checks.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <tuple>
#include <utility>

#include "apps/lumenkit/check/caption_check.h"
#include "apps/lumenkit/check/contents_check.h"
#include "apps/lumenkit/check/memo_check.h"
#include "apps/lumenkit/check/name_check.h"
#include "apps/lumenkit/check/rules.h"
#include "apps/lumenkit/check/saved_control.h"
#include "apps/lumenkit/check/spoken_name_check.h"
#include "apps/lumenkit/check/text_places.h"
#include "apps/lumenkit/check/trial_check.h"
#include "forms/naming_labels.h"

namespace lumenkit::check {

namespace {

// The memo uses a negative limit as 0.
std::int16_t Limit(const Value& value) {
    return std::max<std::int16_t>(ToInteger(value), 0);
}

void CheckLabel(SavedControl& control) {
    if (const std::optional<Text> caption = control.Read(u"Caption", ToText)) {
        control.Add(u"Caption", *caption, CheckCaption(*caption));
    }
}

void CheckMemo(SavedControl& control) {
    const std::optional<Text> text = control.Read(u"Text", ToText);
    const std::optional<std::int16_t> maxCharsPerLine = control.Read(u"MaxCharsPerLine", Limit);
    const std::optional<std::int16_t> maxLines = control.Read(u"MaxLines", Limit);
    if (text && maxCharsPerLine && maxLines) {
        control.Add(u"Text", *text, CheckMemoText(*text, {*maxCharsPerLine, *maxLines}));
    }
}

void CheckOptionList(SavedControl& control) {
    const std::optional<Text> contents = control.Read(u"Contents", ToText);
    const std::optional<std::int16_t> listIndex = control.Read(u"ListIndex", ToInteger);
    if (!contents) {
        return;
    }
    const ContentsCheck check = CheckContents(*contents);
    control.Add(u"Contents", *contents, check.remarks);
    if (listIndex) {
        control.AddWhole(u"ListIndex", CheckListIndex(*listIndex, check.itemCount));
    }
}

void CheckControl(SavedControl& control) {
    using Checker = void (*)(SavedControl&);
    constexpr std::array<std::pair<TextView, Checker>, 3> checkers = {{
        {u"VLabel", CheckLabel},
        {u"VMemo", CheckMemo},
        {u"VOptList", CheckOptionList},
    }};
    CheckNames(control);
    for (const auto& [name, check] : checkers) {
        if (control.Type().name == name) {
            check(control);
        }
    }
    CheckTrial(control);
}

auto PlaceIn(const Finding& finding) {
    return std::tuple(finding.place.line, finding.place.column, finding.offset.value_or(0));
}

// Adds the warnings of the document, except where another finding has the same place.
void AddWarnings(const forms::Document& document, Findings& findings) {
    std::set<std::pair<std::size_t, std::size_t>> places;
    for (const Finding& finding : findings) {
        places.emplace(finding.place.line, finding.place.column);
    }
    for (const forms::Warning& warning : document.Warnings()) {
        if (!places.contains({warning.place.line, warning.place.column})) {
            findings.push_back({rules::notUnderstood.name,
                                document.Name(),
                                warning.place,
                                {},
                                {},
                                std::nullopt,
                                warning.text,
                                {},
                                false});
        }
    }
}

}  // namespace

Findings CheckForm(const forms::Document& document, const ClassTable& classes) {
    Findings findings;
    for (const auto& [block, label] : forms::NamingLabels(document.Root())) {
        const ClassDescriptor* type = classes.Find(block->ClassName());
        if (type != nullptr && type->kind == ClassKind::Control) {
            SavedControl control(document, *block, *type, findings);
            CheckControl(control);
            CheckSpokenName(control, document, label);
        }
    }
    AddWarnings(document, findings);
    std::stable_sort(
        findings.begin(), findings.end(),
        [](const Finding& left, const Finding& right) { return PlaceIn(left) < PlaceIn(right); });
    return findings;
}

Findings CheckCaptionFile(const std::string& name, TextView caption) {
    Findings findings;
    const TextPlaces places = TextPlaces::InFile(caption);
    for (const Remark& remark : CheckCaption(caption)) {
        findings.push_back({remark.rule,
                            name,
                            places.PlaceOf(remark.offset),
                            {},
                            "Caption",
                            remark.offset,
                            remark.message,
                            remark.suggestion,
                            false});
    }
    return findings;
}

}  // namespace lumenkit::check
