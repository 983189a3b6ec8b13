#pragma once

#include "apps/lumenform/form_view/block_reader.h"
#include "apps/lumenform/form_view/scale.h"
#include "frame/host/constituent.h"

namespace lumenkit::lumenform {

/// Returns whether a control saves its two ends, X1 to Y2, as lines do. Other controls save left,
/// top, width and height.
bool HasEnds(const forms::Block& block);
bool ClassHasEnds(TextView className);

/// Returns whether the line of a control with ends rises from left to right on the screen.
/// `scale` is that of its container.
bool Rises(const BlockReader& reader, const Scale& scale);

/// Returns the place in the block, in twips. `otherwise` replaces missing values. The place of a
/// control with ends is the box between them; `scale` is that of its container.
host::Placement SavedPlace(const BlockReader& reader, const Scale& scale,
                           const host::Placement& otherwise);

/// Writes the changed values into the block: ends in the units of `scale`, other places in twips.
/// Ends keep their corners of the box.
void StorePlace(const BlockReader& reader, const Scale& scale, const host::Placement& former,
                const host::Placement& now);

/// Moves a control in the file by twips to the right.
void MoveInFile(const BlockReader& reader, const Scale& scale, float across);

/// Converts the ends of a control that moves to a container with another scale. Other controls
/// stay unchanged.
void Rescale(const BlockReader& reader, const Scale& former, const Scale& now);

}  // namespace lumenkit::lumenform
