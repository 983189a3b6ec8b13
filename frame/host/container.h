#pragma once

#include <cstdint>
#include <span>

#include "frame/automation/value.h"
#include "frame/text.h"

namespace lumenkit::host {

/// The container's interface for a control.
class Container {
 public:
    virtual ~Container() = default;

    /// Notifies the container that a property changed, so that it saves the value and updates
    /// property browsers.
    virtual void PropertyChanged(TextView name) = 0;
    /// Returns whether a bound property may change now.
    virtual bool CanPropertyChange(TextView name) = 0;
    /// Raises the event with this identifier in the control's event table. The container may assign
    /// the arguments; each keeps the type that it was passed in. The container may call the control
    /// before this function returns. Errors of event handlers do not propagate to the control.
    virtual void RaiseEvent(std::int32_t event, std::span<Value> arguments) = 0;
};

}  // namespace lumenkit::host
