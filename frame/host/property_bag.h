#pragma once

#include "frame/automation/value.h"
#include "frame/text.h"

namespace lumenkit::host {

/// The container's storage for a control's design-time settings.
class PropertyBag {
 public:
    virtual ~PropertyBag() = default;

    /// Returns the value stored under `name` (compared without regard to case), or `defaultValue`
    /// when there is none.
    virtual Value ReadProperty(TextView name, const Value& defaultValue) = 0;
    /// Stores `value` under `name`, unless it is the same as `defaultValue` (SameValue).
    virtual void WriteProperty(TextView name, const Value& value, const Value& defaultValue) = 0;
};

}  // namespace lumenkit::host
