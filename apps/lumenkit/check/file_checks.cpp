#include "apps/lumenkit/check/file_checks.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

#include "apps/lumenkit/check/caption_check.h"
#include "apps/lumenkit/check/contents_check.h"
#include "apps/lumenkit/check/memo_check.h"
#include "apps/lumenkit/check/name_check.h"
#include "apps/lumenkit/check/rules.h"
#include "apps/lumenkit/check/saved_control.h"
#include "apps/lumenkit/check/spoken_name_check.h"
#include "apps/lumenkit/check/text_places.h"
#include "apps/lumenkit/check/trial_check.h"
#include "forms/controls.h"
#include "forms/naming_labels.h"
#include "frame/utf8.h"

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

void AddNameClashes(const forms::Document& document, Findings& findings) {
    for (const forms::NameClash& clash : forms::NameClashes(document.Root())) {
        findings.push_back({rules::duplicateName.name,
                            document.Name(),
                            clash.control->NamePlace(),
                            ToUtf8(forms::NameInCode(*clash.control)),
                            {},
                            std::nullopt,
                            TextOf(clash),
                            {},
                            false});
    }
}

// The control and the property at a place.
struct Subject {
    std::string control;
    std::string property;
};

// Finds the subjects of lines. The recursion is as deep as the blocks are nested, which the parser
// limits.
class Subjects {
 public:
    explicit Subjects(const forms::Block& form) { AddControl(form); }

    Subject At(std::size_t line) const {
        const auto found = byLine_.find(line);
        return found == byLine_.end() ? Subject() : found->second;
    }

 private:
    void AddControl(const forms::Block& control) {
        const std::string name = ToUtf8(forms::NameInCode(control));
        byLine_[control.NamePlace().line] = {name, {}};
        AddItems(control, name, {});
    }
    // `path` is that of the property groups around the block: "Font.".
    void AddItems(const forms::Block& block, const std::string& control, const std::string& path) {
        for (const forms::Block::Item& item : block.Items()) {
            if (const auto* property = std::get_if<std::unique_ptr<forms::Property>>(&item)) {
                byLine_[(*property)->NamePlace().line] = {control,
                                                          path + ToUtf8((*property)->Name())};
            } else if (const auto* line = std::get_if<std::unique_ptr<forms::IdleLine>>(&item)) {
                byLine_[(*line)->place.line] = {control, {}};
            } else if (const auto* inner = std::get_if<std::unique_ptr<forms::Block>>(&item)) {
                AddBlock(**inner, control, path);
            }
        }
    }
    void AddBlock(const forms::Block& inner, const std::string& control, const std::string& path) {
        if (inner.Kind() == forms::BlockKind::Control) {
            AddControl(inner);
        } else {
            const std::string name = path + ToUtf8(inner.Name());
            byLine_[inner.NamePlace().line] = {control, name};
            AddItems(inner, control, name + '.');
        }
    }

    std::map<std::size_t, Subject> byLine_;
};

// The text of a warning without the name of the property, which a finding has besides.
std::string MessageOf(const forms::Warning& warning, const Subject& subject) {
    const std::string name = subject.property + ": ";
    return warning.text.starts_with(name) ? warning.text.substr(name.size()) : warning.text;
}

// Adds the warnings of the document, except where another finding has the same place.
void AddWarnings(const forms::Document& document, Findings& findings) {
    std::set<std::pair<std::size_t, std::size_t>> places;
    for (const Finding& finding : findings) {
        places.emplace(finding.place.line, finding.place.column);
    }
    const std::vector<forms::Warning> warnings = document.Warnings();
    if (warnings.empty()) {
        return;
    }
    const Subjects subjects(document.Root());
    for (const forms::Warning& warning : warnings) {
        const Subject subject = subjects.At(warning.place.line);
        if (!places.contains({warning.place.line, warning.place.column})) {
            findings.push_back({rules::notUnderstood.name,
                                document.Name(),
                                warning.place,
                                subject.control,
                                subject.property,
                                std::nullopt,
                                MessageOf(warning, subject),
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
    AddNameClashes(document, findings);
    AddWarnings(document, findings);
    std::stable_sort(
        findings.begin(), findings.end(),
        [](const Finding& left, const Finding& right) { return PlaceIn(left) < PlaceIn(right); });
    return findings;
}

Findings CheckOneControl(const forms::Document& document, forms::Block& block,
                         const ClassDescriptor& type) {
    Findings findings;
    SavedControl control(document, block, type, findings);
    CheckControl(control);
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
