#include "apps/lumenform/design/canvas/edges.h"

#include <algorithm>

namespace lumenkit::lumenform {

namespace {

// Shifts the edges of one dimension.
void Shift(float& start, float& length, bool near, bool far, float by) {
    if (near && far) {
        start += by;
    } else if (near) {
        by = std::min(by, length);
        start += by;
        length -= by;
    } else if (far) {
        length = std::max(length + by, 0.0F);
    }
}

}  // namespace

host::Placement Shifted(const host::Placement& place, Edges edges, float across, float down) {
    host::Placement shifted = place;
    Shift(shifted.left, shifted.width, edges.left, edges.right, across);
    Shift(shifted.top, shifted.height, edges.top, edges.bottom, down);
    return shifted;
}

}  // namespace lumenkit::lumenform
