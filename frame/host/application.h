#pragma once

#include "frame/text.h"

namespace lumenkit::host {

/// The component as the runtime's application object knows it.
class Application {
 public:
    virtual ~Application() = default;

    /// The component's own file name without folder and extension, not that of the host program.
    /// May raise an error of the runtime.
    virtual Text ExeName() = 0;
};

}  // namespace lumenkit::host
