#pragma once

#include "frame/color.h"
#include "frame/host/font.h"

namespace lumenkit::host {

/// What the container tells of the surroundings of a control.
class Ambient {
 public:
    virtual ~Ambient() = default;

    /// True in a running application, false while a designer edits the form.
    virtual bool UserMode() const = 0;
    /// The container's font, never nothing. Each call gives a font of the caller's own: changing it
    /// does not change the container.
    virtual FontRef AmbientFont() const = 0;
    virtual Color BackColor() const = 0;
};

}  // namespace lumenkit::host
