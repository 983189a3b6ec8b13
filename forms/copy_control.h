#pragma once

#include "forms/block.h"
#include "forms/document.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// Puts a copy of `control`, with all that is in it, behind everything else in `parent`. What it
/// keeps in the companion of `from` comes along to that of `to`, which may be the same document.
/// Those that lie in it keep their names. Throws FormError for a text that the companion of `from`
/// does not have, and when that of `to` is full. A copy that fails leaves nothing in `parent`, but
/// its records in the companion, which nothing refers to.
Block& CopyControl(const Document& from, const Block& control, Document& to, Block& parent,
                   TextView name);

}  // namespace lumenkit::forms
