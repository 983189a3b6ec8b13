#pragma once

#include "frame/host/constituent.h"

namespace lumenkit::form {

/// Which edges of a rectangle go along: some of them size it, all of them move it.
struct Edges {
    bool left = false;
    bool top = false;
    bool right = false;
    bool bottom = false;

    friend bool operator==(Edges, Edges) = default;
};

constexpr Edges allEdges{true, true, true, true};

/// The place once these edges went that far, in twips. An edge that alone would pass the one across
/// stops there.
host::Placement Shifted(const host::Placement& place, Edges edges, float across, float down);

}  // namespace lumenkit::form
