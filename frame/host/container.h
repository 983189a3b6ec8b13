#pragma once

#include <cstdint>
#include <span>

#include "frame/automation/value.h"
#include "frame/text.h"

namespace lumenkit::host {

/// The way from a control back to its container.
class Container {
 public:
    virtual ~Container() = default;

    /// Says that the property has a new value, to be saved and shown in property browsers.
    virtual void PropertyChanged(TextView name) = 0;
    /// Asks whether a bound property may change now.
    virtual bool CanPropertyChange(TextView name) = 0;
    /// Raises the event with this identifier in the control's event table. The container may assign
    /// the arguments; each comes back in the type in which it went out. It may also call the
    /// control before this returns. Errors of the event's handlers do not come back.
    virtual void RaiseEvent(std::int32_t event, std::span<Value> arguments) = 0;
};

}  // namespace lumenkit::host
