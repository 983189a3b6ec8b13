#pragma once

#include <cstdint>
#include <functional>
#include <span>

#include "frame/automation/interface_table.h"
#include "frame/host/container.h"

namespace lumenkit::qt {

/// The container as one control reaches it, for a form to listen to. What is not set does nothing,
/// and any change is allowed.
class FormContainer final : public host::Container {
 public:
    /// `events` is the table of the control's class; null: it has none. It must outlive this.
    explicit FormContainer(const EventTable* events) : events_(events) {}

    void PropertyChanged(TextView name) override;
    bool CanPropertyChange(TextView name) override;
    /// Arguments that come back as another type are converted; one that cannot be keeps its old
    /// value. Throws std::logic_error for an event that the class does not have and for a wrong
    /// number of arguments.
    void RaiseEvent(std::int32_t event, std::span<Value> arguments) override;

    std::function<void(TextView name)> onPropertyChanged;
    std::function<bool(TextView name)> mayPropertyChange;
    /// Sees an event by its name and may write to the arguments. Errors of the runtime that it
    /// raises are its own affair.
    std::function<void(TextView name, std::span<Value> arguments)> onEvent;

 private:
    const EventTable* events_;
};

}  // namespace lumenkit::qt
