#pragma once

#include <lumenkit/widgets/control_widget.h>

namespace lumenkit::widgets {

/// Opens the private half of a widget to the other classes of this library.
class CoreAccess {
 public:
    static ControlCore& Of(const ControlWidget& widget) { return *widget.core_; }
};

inline ControlCore& CoreOf(const ControlWidget& widget) {
    return CoreAccess::Of(widget);
}

}  // namespace lumenkit::widgets
