#include "apps/lumenkit/check/trial_check.h"

#include <cstdint>
#include <optional>
#include <string>

#include "apps/lumenkit/check/rules.h"
#include "frame/runtime_error.h"
#include "frame/utf8.h"

namespace lumenkit::check {

namespace {

std::string Described(const TrialError& error) {
    const bool isLoading = error.step == TrialError::Step::Loading;
    return std::string(isLoading ? "loading" : "drawing") + " reports error " +
           std::to_string(error.number) + " (" + ToUtf8(error.description) + ')' +
           (error.endsLoading ? " and does not read the following properties" : "");
}

// Whether a sum of heights overflows depends on the font.
const Rule& RuleOf(const TrialError& error) {
    if (error.step == TrialError::Step::Loading) {
        return rules::unreadableValue;
    }
    const bool isOverflow = error.number == static_cast<std::int32_t>(ErrorNumber::Overflow);
    return isOverflow ? rules::drawingOverflow : rules::drawingError;
}

void Add(SavedControl& control, const TrialError& error) {
    const bool isLoading = error.step == TrialError::Step::Loading;
    const Remark remark = {RuleOf(error).name, error.offset, Described(error), {}};
    if (error.property.empty()) {
        control.AddAboutControl(remark);
        return;
    }
    const std::optional<Text> drawn =
        isLoading || error.property != u"Caption" ? std::nullopt : control.Read(u"Caption", ToText);
    if (drawn) {
        control.Add(error.property, *drawn, {remark});
    } else {
        control.AddWhole(error.property, {remark});
    }
}

}  // namespace

void CheckTrial(SavedControl& control) {
    for (const TrialError& error : control.Try()) {
        if (!control.HasError(error.property)) {
            Add(control, error);
        }
    }
}

}  // namespace lumenkit::check
