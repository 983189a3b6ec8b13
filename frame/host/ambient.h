#pragma once

#include "frame/color.h"
#include "frame/host/font.h"

namespace lumenkit::host {

/// The ambient properties that the container provides to a control.
class Ambient {
 public:
    virtual ~Ambient() = default;

    /// Returns true in a running application, false while a designer edits the form.
    virtual bool UserMode() const = 0;
    /// Returns the container's font, never null. Each call returns a separate copy: changing it
    /// does not change the container.
    virtual FontRef AmbientFont() const = 0;
    virtual Color BackColor() const = 0;
};

}  // namespace lumenkit::host
