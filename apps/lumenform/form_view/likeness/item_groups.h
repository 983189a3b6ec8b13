// The parts of a control that its block saves in property groups: columns, panels, buttons.
#pragma once

#include <vector>

#include "apps/lumenform/form_view/block_reader.h"

namespace lumenkit::lumenform {

/// Returns the numbered groups "Panel1", "Panel2" or "ColumnHeader(1)", "ColumnHeader(2)" of a
/// block, in the order of the file. `stem` is the name without the number.
std::vector<BlockReader> NumberedGroups(const BlockReader& reader, TextView stem);

/// Does the same for the groups inside the group `around`. Empty if there is no such group.
std::vector<BlockReader> NumberedGroups(const BlockReader& reader, TextView around, TextView stem);

/// Converts hundredths of a millimetre, the unit in which these controls save lengths, to pixels
/// from 0 to 16384.
int PixelsOfExtent(float hundredths);

}  // namespace lumenkit::lumenform
