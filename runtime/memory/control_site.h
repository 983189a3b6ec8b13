#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <span>

#include "frame/automation/interface_table.h"
#include "frame/host/container.h"
#include "runtime/memory/fault_plan.h"
#include "runtime/memory/log.h"

namespace lumenkit::memory {

/// Receives an event by name. It may assign the arguments and call the control. A RuntimeError that
/// it throws is swallowed.
using EventHandler = std::function<void(TextView name, std::span<Value> arguments)>;

/// The container's interface for one control.
class ControlSite final : public host::Container {
 public:
    /// If `log` is null, nothing is logged. `events` is null for a class without events. All
    /// arguments must outlive the site.
    ControlSite(FaultPlan& faults, Log* log, const EventTable* events, TextView controlName)
        : faults_(faults), log_(log), events_(events), controlName_(controlName) {}

    void PropertyChanged(TextView name) override;
    /// Returns true unless AllowChange set another answer for `name`.
    bool CanPropertyChange(TextView name) override;
    /// Logs the event and runs the handler. An argument that the handler changed to another type is
    /// converted back; one that does not convert gets its original value. Throws std::logic_error
    /// for an event that the class does not have and for a wrong number of arguments.
    void RaiseEvent(std::int32_t event, std::span<Value> arguments) override;

    /// Sets the answer of CanPropertyChange for `name`, compared without regard to case.
    void AllowChange(TextView name, bool allowed);
    void SetEventHandler(EventHandler handler) { handler_ = std::move(handler); }

 private:
    void RunHandler(TextView name, std::span<Value> arguments);

    FaultPlan& faults_;
    Log* log_;
    const EventTable* events_;
    Text controlName_;
    std::map<Text, bool> allowed_;  // by lower-case name
    EventHandler handler_;
};

}  // namespace lumenkit::memory
