#include "runtime/memory/fault_plan.h"

#include <stdexcept>

namespace lumenkit::memory {

namespace {

bool IsNamed(TextView fullName, TextView interfaceName, TextView member) {
    const std::size_t point = interfaceName.size();
    return fullName.size() == point + 1 + member.size() && fullName[point] == u'.' &&
           SameText(fullName.substr(0, point), interfaceName, Compare::IgnoreCase) &&
           SameText(fullName.substr(point + 1), member, Compare::IgnoreCase);
}

}  // namespace

void FaultPlan::FailCall(std::int64_t ordinal, ErrorNumber number) {
    Plan(calls_ + ordinal, ordinal, {}, number);
}

void FaultPlan::FailCall(TextView name, std::int64_t occurrence, ErrorNumber number) {
    Plan(0, occurrence, name, number);  // every call is checked
}

void FaultPlan::Plan(std::int64_t look, std::int64_t remaining, TextView name, ErrorNumber number) {
    if (remaining < 1) {
        throw std::logic_error("calls are counted from 1");
    }
    look_ = look;
    remaining_ = remaining;
    name_ = name;
    number_ = number;
}

void FaultPlan::Clear() {
    look_ = never;
}

void FaultPlan::ReportingCall(TextView interfaceName, TextView member) {
    if (countsReporting_) {
        Call(interfaceName, member);
    } else if (IsArmed() && !name_.empty()) {
        Look(interfaceName, member);
    }
}

void FaultPlan::Look(TextView interfaceName, TextView member) {
    if (!name_.empty() && (!IsNamed(name_, interfaceName, member) || --remaining_ > 0)) {
        return;
    }
    Clear();
    Raise(number_);
}

}  // namespace lumenkit::memory
