#pragma once

namespace lumenkit::form {

/// The grid of a form that is designed. It begins in the upper left corner of each container.
struct Grid {
    float step = 120;  ///< twips from dot to dot, at least 1
    bool isShown = true;
    bool snaps = true;  ///< what is dragged stops at its lines only

    /// The nearest line.
    float Nearest(float twips) const;

    friend bool operator==(const Grid&, const Grid&) = default;
};

}  // namespace lumenkit::form
