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

/// Sees an event by its name and may write to the arguments, and call the control again. Errors of
/// the runtime that it raises are swallowed.
using EventHandler = std::function<void(TextView name, std::span<Value> arguments)>;

/// The container as one control reaches it.
class ControlSite final : public host::Container {
 public:
    /// `log` null: nothing is logged. `events` null: the class has none. All must outlive the site.
    ControlSite(FaultPlan& faults, Log* log, const EventTable* events, TextView controlName)
        : faults_(faults), log_(log), events_(events), controlName_(controlName) {}

    void PropertyChanged(TextView name) override;
    /// True for a name that nothing was said about.
    bool CanPropertyChange(TextView name) override;
    /// Logs the event and runs the handler. An argument that comes back as another type is
    /// converted; one that cannot be keeps its old value. Throws std::logic_error for an event that
    /// the class does not have and for a wrong number of arguments.
    void RaiseEvent(std::int32_t event, std::span<Value> arguments) override;

    /// The answer for `name` (without regard to case) from now on.
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
