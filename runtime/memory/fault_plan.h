// Fault injection: makes a chosen call of the host contract fail.
#pragma once

#include <cstdint>
#include <limits>

#include "frame/runtime_error.h"
#include "frame/text.h"

namespace lumenkit::memory {

/// Counts the calls that controls make to the runtime and lets one of them raise an error of the
/// runtime instead of doing its work. A fault fires once; one plan holds one fault at a time.
///
/// A call is named by its interface and member function: "Surface.Print", "TextBox.SetText",
/// "Font.SetSize", "PropertyBag.ReadProperty", "Container.RaiseEvent". Calls to the extender bear
/// the member's name: "Extender.Tag". Compared without regard to case.
///
/// The calls that reporting an error takes (Application.ExeName, Interaction.Beep and
/// Interaction.MsgBox) are not counted by ordinal unless asked for; by name they can always fail.
class FaultPlan {
 public:
    /// The `ordinal`-th counted call from now on (1 is the next one) raises `number`. Replaces the
    /// fault planned before. Both throw std::logic_error for a count below 1.
    void FailCall(std::int64_t ordinal, ErrorNumber number);
    /// The `occurrence`-th call from now on of the member `name` raises `number`.
    void FailCall(TextView name, std::int64_t occurrence, ErrorNumber number);
    /// Takes the planned fault away.
    void Clear();
    /// Whether a fault is planned that has not fired yet.
    bool IsArmed() const { return look_ != never; }
    /// Whether the calls that reporting takes are counted. False at first.
    void CountReporting(bool count) { countsReporting_ = count; }

    /// Calls counted so far. A test counts a run first and then fails each of its calls in turn.
    std::int64_t Calls() const { return calls_; }

    // For the runtime: what every call of the contract begins with.
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
    std::int64_t look_ = never;  // the call from which on the plan must be looked at
    std::int64_t remaining_ = 0;
    Text name_;  // empty: any call
    ErrorNumber number_ = ErrorNumber::InternalError;
    bool countsReporting_ = false;
};

}  // namespace lumenkit::memory
