#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <utility>

#include "frame/automation/interface_table.h"
#include "frame/host/ambient.h"
#include "frame/host/container.h"
#include "runtime/memory/fault_plan.h"
#include "runtime/memory/form.h"
#include "runtime/memory/log.h"
#include "runtime/shared/event_handler.h"

namespace lumenkit::memory {

using shared::EventHandler;

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
    FaultPlan& faults_;
    Log* log_;
    const EventTable* events_;
    Text controlName_;
    std::map<Text, bool> allowed_;  // by lower-case name
    EventHandler handler_;
};

/// The ambient properties of a form for one control.
class Ambient final : public host::Ambient {
 public:
    Ambient(Form& form, bool userMode) : form_(form), userMode_(userMode) {}

    bool UserMode() const override;
    host::FontRef AmbientFont() const override;
    Color BackColor() const override;

    void SetUserMode(bool userMode) { userMode_ = userMode; }

 private:
    Form& form_;
    bool userMode_;
};

}  // namespace lumenkit::memory
