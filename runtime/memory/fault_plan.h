// Fault injection: makes a chosen call of the host contract fail.
#pragma once

#include <cstdint>
#include <limits>

#include "frame/runtime_error.h"
#include "frame/text.h"

namespace lumenkit::memory {

/// Counts the calls that controls make to the runtime and makes one of them raise an error of the
/// runtime instead of doing its work. A fault fires once; a plan holds one fault at a time.
///
/// A call is named by its interface and member function: "Surface.Print", "TextBox.SetText",
/// "Font.SetSize", "PropertyBag.ReadProperty", "Container.RaiseEvent". A call to the extender is
/// named by the member: "Extender.Tag". Names are compared without regard to case.
///
/// The calls that report an error (Application.ExeName, Interaction.Beep and Interaction.MsgBox)
/// are not counted unless CountReporting is on; by name they can always fail.
class FaultPlan {
 public:
    /// Makes the `ordinal`-th counted call from now on (1 is the next one) raise `number`. Replaces
    /// the planned fault. Both overloads throw std::logic_error for a count below 1.
    void FailCall(std::int64_t ordinal, ErrorNumber number);
    /// Makes the `occurrence`-th call of the member `name` from now on raise `number`.
    void FailCall(TextView name, std::int64_t occurrence, ErrorNumber number);
    /// Cancels the planned fault.
    void Clear();
    /// Returns whether a fault is planned that has not fired yet.
    bool IsArmed() const { return look_ != never; }
    /// Sets whether the calls that report an error are counted; initially they are not.
    void CountReporting(bool count) { countsReporting_ = count; }

    /// Number of calls counted so far. A test counts a run first and then fails each of its calls
    /// in turn.
    std::int64_t Calls() const { return calls_; }

    // For the runtime: every call of the contract begins with one of these.
    void Call(TextView interfaceName, TextView member) {
        if (++calls_ >= look_) {
            Look(interfaceName, member);
        }
    }
    void ReportingCall(TextView interfaceName, TextView member);

 private:
    static constexpr std::int64_t never = std::numeric_limits<std::int64_t>::max();

    void Plan(std::int64_t look, std::int64_t remaining, TextView name, ErrorNumber number);
    void Look(TextView interfaceName, TextView member);

    std::int64_t calls_ = 0;
    std::int64_t look_ = never;  // number of the first call to check against the plan
    std::int64_t remaining_ = 0;
    Text name_;  // empty: any call
    ErrorNumber number_ = ErrorNumber::InternalError;
    bool countsReporting_ = false;
};

}  // namespace lumenkit::memory
