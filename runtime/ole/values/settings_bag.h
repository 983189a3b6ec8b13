#pragma once

#include "frame/host/property_bag.h"
#include "frame/runtime_error.h"

namespace lumenkit::ole {

/// A property bag that a control is loaded from.
class SettingsBag : public host::PropertyBag {
 public:
    /// Called when a value in the bag cannot be used, with the reason. Raises `error` if the whole
    /// bag is then unusable. Otherwise the control is loaded without the value.
    virtual void Refuse(TextView name, const RuntimeError& error) = 0;
};

}  // namespace lumenkit::ole
