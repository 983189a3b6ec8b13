// Which control lies in front of which: the first in the file is the foremost.
#pragma once

#include "apps/lumenform/design/model/design.h"
#include "forms/block.h"

namespace lumenkit::form {

/// The block of `container` before which a control stands in front of all others; null: at the end.
const forms::Block* Foremost(const forms::Block& container);
/// The block before which a control stands behind all others, as menus come last; null: at the end.
const forms::Block* BehindAll(const forms::Block& container);

/// The selected controls, which keep their order, in front of all others that lie beside them. One
/// step of the history, as the next.
void BringToFront(Design& design);
void SendToBack(Design& design);
void DeleteSelected(Design& design);

}  // namespace lumenkit::form
