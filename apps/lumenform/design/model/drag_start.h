#pragma once

namespace lumenkit::lumenform {

/// The corner of a new control's place at which the drag began that drew it.
struct DragStart {
    bool right = false;
    bool bottom = false;

    friend bool operator==(DragStart, DragStart) = default;
};

}  // namespace lumenkit::lumenform
