#pragma once

#include "frame/host/constituent.h"

namespace lumenkit::lumenform {

/// The edges of a rectangle that move: some edges size it, all edges move it.
struct Edges {
    bool left = false;
    bool top = false;
    bool right = false;
    bool bottom = false;

    friend bool operator==(Edges, Edges) = default;
};

constexpr Edges allEdges{true, true, true, true};

/// Returns the place after these edges have moved by a distance in twips. A single edge stops at
/// the opposite edge.
host::Placement Shifted(const host::Placement& place, Edges edges, float across, float down);

}  // namespace lumenkit::lumenform
