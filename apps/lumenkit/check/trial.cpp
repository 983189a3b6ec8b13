#include "apps/lumenkit/check/trial.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "apps/lumenkit/check/caption_outline.h"
#include "apps/lumenkit/check/error_message.h"
#include "apps/lumenkit/check/saved_properties.h"
#include "apps/lumenkit/windowless/lone_control.h"
#include "forms/form_bag.h"
#include "frame/automation/value.h"
#include "frame/host/property_bag.h"
#include "runtime/memory/hosted_control.h"

namespace lumenkit::check {

namespace {

using Step = TrialError::Step;

constexpr TextView caption = u"Caption";

// Values for a trial in place of the saved ones, by name. Without a value, a property counts as
// missing.
using Replacements = std::map<Text, std::optional<Value>, std::less<>>;

// One message box of a control.
struct Report {
    Step step;
    Text property;  // the last one that was read
    ErrorMessage error;
};

// Remembers which property the control is reading when it reports an error.
class TrialBag final : public host::PropertyBag {
 public:
    TrialBag(host::PropertyBag& saved, const Replacements& replaced, memory::Log& log)
        : saved_(saved), replaced_(replaced), log_(log) {}

    Value ReadProperty(TextView name, const Value& defaultValue) override {
        Collect(Step::Loading);
        last_ = name;
        const auto replaced = replaced_.find(name);
        return replaced == replaced_.end() ? saved_.ReadProperty(name, defaultValue)
                                           : replaced->second.value_or(defaultValue);
    }
    void WriteProperty(TextView /*name*/, const Value& /*value*/,
                       const Value& /*defaultValue*/) override {}

    // Turns the messages since the last call into reports.
    void Collect(Step step) {
        for (const memory::ShownMessage* message : log_.Messages()) {
            reports_.push_back({step, last_, ReadErrorMessage(message->text)});
        }
        log_.Clear();
    }
    std::vector<Report> Take() { return std::move(reports_); }

 private:
    host::PropertyBag& saved_;
    const Replacements& replaced_;
    memory::Log& log_;
    Text last_;
    std::vector<Report> reports_;
};

class Trial {
 public:
    Trial(const forms::Document& document, forms::Block& block, const ClassDescriptor& type)
        : document_(document), block_(block), type_(type) {}

    std::vector<TrialError> Run() {
        for (const bool userMode : {false, true}) {
            userMode_ = userMode;
            replaced_.clear();
            while (FindOne()) {
            }
        }
        return std::move(errors_);
    }

 private:
    // Returns the reports of one start and one repaint.
    std::vector<Report> Attempt(const Replacements& replaced) const {
        windowless::LoneControl lone(document_, block_, type_, userMode_);
        memory::HostedControl& control = lone.Hosted();
        TrialBag bag(lone.Saved(), replaced, lone.Form().GetLog());
        control.ReadProperties(bag);
        bag.Collect(Step::Loading);
        control.FinishStart();
        control.Paint();
        bag.Collect(Step::Drawing);
        return bag.Take();
    }

    // Finds the cause of the first report and leaves that property out of further trials. Returns
    // false if there is no report or no cause.
    bool FindOne() {
        const std::vector<Report> reports = Attempt(replaced_);
        if (reports.empty()) {
            return false;
        }
        const Report& first = reports.front();
        const std::optional<Text> cause = CauseOf(first);
        Add(first, cause.value_or(Text()));
        if (cause) {
            replaced_[*cause] = std::nullopt;
        }
        return cause.has_value();
    }

    // Returns the property that the control was reading, if it does not make the report without it.
    // Otherwise leaves out one property after the other until the error is gone: the last one is
    // needed for the error, and those before it are not.
    std::optional<Text> CauseOf(const Report& report) const {
        Replacements without = replaced_;
        if (report.step == Step::Loading && LeaveOut(report.property, without) &&
            !MakesAgain(report, Attempt(without))) {
            return report.property;
        }
        without = replaced_;
        for (const SavedProperty& property : PropertiesOf(type_).read) {
            if (LeaveOut(property.name, without) && !HasError(report, Attempt(without))) {
                return property.name;
            }
        }
        return std::nullopt;
    }

    // Returns whether the property is saved and was not left out before.
    bool LeaveOut(const Text& property, Replacements& replaced) const {
        const bool isSaved =
            block_.FindProperty(property) != nullptr || block_.FindGroup(property) != nullptr;
        return isSaved && replaced.emplace(property, std::nullopt).second;
    }

    static bool MakesAgain(const Report& wanted, const std::vector<Report>& reports) {
        return std::ranges::any_of(reports, [&](const Report& report) {
            return report.step == wanted.step && report.property == wanted.property &&
                   report.error == wanted.error;
        });
    }
    static bool HasError(const Report& wanted, const std::vector<Report>& reports) {
        return std::ranges::find(reports, wanted.error, &Report::error) != reports.end();
    }

    void Add(const Report& report, Text cause) {
        TrialError error = {.step = report.step,
                            .property = std::move(cause),
                            .number = report.error.number,
                            .description = report.error.description,
                            .endsLoading = report.error.procedure == u"UserControl_ReadProperties"};
        if (error.property == caption && error.step == Step::Drawing) {
            error.offset = OffsetOf(report);
        }
        const bool isKnown = std::ranges::any_of(errors_, [&](const TrialError& known) {
            return known.step == error.step && known.property == error.property;
        });
        if (!isKnown) {
            errors_.push_back(std::move(error));
        }
    }

    // Drawing stops at an error, so the error is in the first part without which the caption is
    // drawn. A part begins at a command.
    std::size_t OffsetOf(const Report& report) const {
        forms::FormBag saved(document_, block_, nullptr);
        const Text text = ToText(saved.ReadProperty(caption, Text()));
        std::vector<std::size_t> parts = {0};
        for (const WrittenCommand& command : OutlineOf(text).commands) {
            parts.push_back(command.offset);
        }
        const auto isDrawnBefore = [&](std::size_t end) {
            Replacements shorter = replaced_;
            shorter[Text(caption)] = Value(text.substr(0, end));
            return !HasError(report, Attempt(shorter));
        };
        const auto behind = std::ranges::partition_point(parts, isDrawnBefore);
        return behind == parts.begin() ? 0 : *std::prev(behind);
    }

    const forms::Document& document_;
    forms::Block& block_;
    const ClassDescriptor& type_;
    bool userMode_ = false;
    Replacements replaced_;
    std::vector<TrialError> errors_;
};

}  // namespace

std::vector<TrialError> TryControl(const forms::Document& document, forms::Block& block,
                                   const ClassDescriptor& type) {
    return Trial(document, block, type).Run();
}

}  // namespace lumenkit::check
