#pragma once

#include "apps/lumenform/form_view/block_reader.h"
#include "frame/host/constituent.h"

namespace lumenkit::form {

/// Whether a control is placed by its two ends, X1 to Y2, as lines are; others are by left, top,
/// width and height.
bool HasEnds(const forms::Block& block);

/// Whether the line of a control with ends goes up from left to right.
bool Rises(const BlockReader& reader);

/// Where the block has its control, in the container's units; `otherwise` stands in for what it
/// does not say. A control with ends has the box between them.
host::Placement SavedPlace(const BlockReader& reader, const host::Placement& otherwise);

/// Writes into the block what is another now. Ends stay in the corners that they are in.
void StorePlace(const BlockReader& reader, const host::Placement& former,
                const host::Placement& now);

}  // namespace lumenkit::form
