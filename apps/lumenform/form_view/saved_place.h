#pragma once

#include "apps/lumenform/form_view/block_reader.h"
#include "frame/host/constituent.h"

namespace lumenkit::lumenform {

/// Returns whether a control saves its two ends, X1 to Y2, as lines do. Other controls save left,
/// top, width and height.
bool HasEnds(const forms::Block& block);

/// Returns whether the line of a control with ends rises from left to right.
bool Rises(const BlockReader& reader);

/// Returns the place in the block, in the container's units. `otherwise` replaces missing values.
/// The place of a control with ends is the box between them.
host::Placement SavedPlace(const BlockReader& reader, const host::Placement& otherwise);

/// Writes the changed values into the block. Ends keep their corners of the box.
void StorePlace(const BlockReader& reader, const host::Placement& former,
                const host::Placement& now);

}  // namespace lumenkit::lumenform
