#pragma once

#include "frame/host/ambient.h"
#include "frame/host/container.h"

namespace lumenkit::qt {

/// The services that a control needs from its container. The site must outlive the control's
/// widget.
class ControlSite {
 public:
    virtual ~ControlSite() = default;

    virtual host::Container& GetContainer() = 0;
    virtual host::Ambient& GetAmbient() = 0;
    /// Called after the control was moved or resized, by code or by the user, and after code showed
    /// or hid it.
    virtual void PlacementChanged() {}
};

}  // namespace lumenkit::qt
