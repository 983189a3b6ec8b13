#pragma once

#include "frame/text.h"

namespace lumenkit::host {

/// The runtime's application object, which describes the component.
class Application {
 public:
    virtual ~Application() = default;

    /// Returns the file name of the component, not of the host program, without folder and
    /// extension. May raise an error of the runtime.
    virtual Text ExeName() = 0;
};

}  // namespace lumenkit::host
