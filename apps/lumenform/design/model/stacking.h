// The z-order of controls: the first one in the file is in front.
#pragma once

#include "apps/lumenform/design/model/form_design.h"
#include "forms/block.h"

namespace lumenkit::lumenform {

/// Returns the block of `container` before which a new block is in front of all others, or null for
/// the end.
const forms::Block* Foremost(const forms::Block& container);
/// Returns the block before which a new block is behind all other controls, because menus come
/// last. Null for the end.
const forms::Block* BehindAll(const forms::Block& container);

/// Moves the selected controls in front of their siblings and keeps their order. Each of the
/// following changes is one step of the history.
void BringToFront(FormDesign& design);
void SendToBack(FormDesign& design);
/// Deletes the selected controls or menus.
void DeleteSelected(FormDesign& design);

}  // namespace lumenkit::lumenform
