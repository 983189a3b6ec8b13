#pragma once

#include <cstdint>
#include <functional>
#include <span>

#include "frame/automation/interface_table.h"
#include "frame/host/container.h"
#include "runtime/shared/event_handler.h"

namespace lumenkit::qt {

/// The container of one control, for a form to listen to. A callback that is not set does nothing;
/// without mayPropertyChange every change is allowed.
class FormContainer final : public host::Container {
 public:
    /// `events` is the event table of the control's class, or null if the class has no events. It
    /// must outlive this object.
    explicit FormContainer(const EventTable* events) : events_(events) {}

    void PropertyChanged(TextView name) override;
    bool CanPropertyChange(TextView name) override;
    /// Converts arguments that come back with another type. An argument that cannot be converted
    /// keeps its old value. Throws std::logic_error for an event that the class does not have and
    /// for a wrong number of arguments.
    void RaiseEvent(std::int32_t event, std::span<Value> arguments) override;

    std::function<void(TextView name)> onPropertyChanged;
    std::function<bool(TextView name)> mayPropertyChange;
    shared::EventHandler onEvent;

 private:
    const EventTable* events_;
};

}  // namespace lumenkit::qt
