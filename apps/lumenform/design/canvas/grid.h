#pragma once

#include <cmath>

namespace lumenkit::lumenform {

/// The grid of a form in the designer. Its origin is the upper left corner of each container.
struct Grid {
    float step = 120;  ///< twips between dots, at least 1
    bool isShown = true;
    bool snaps = true;   ///< dragged edges stop only at grid lines
    bool guides = true;  ///< dragged edges stop at those of the controls beside them, too

    /// Returns the nearest grid line.
    float Nearest(float twips) const { return std::round(twips / step) * step; }

    friend bool operator==(const Grid&, const Grid&) = default;
};

}  // namespace lumenkit::lumenform
