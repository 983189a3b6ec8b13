#pragma once

#include "forms/block.h"
#include "forms/document.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// Adds a copy of `control`, with its contents, at the end of `parent`. Copies its records in the
/// companion of `from` to that of `to`, which may be the same document. The controls inside it keep
/// their names. Throws FormError for a text that is missing in the companion of `from`, and when
/// the companion of `to` is full. A copy that fails leaves nothing in `parent`; records that it
/// already appended to the companion stay there without a reference.
Block& CopyControl(const Document& from, const Block& control, Document& to, Block& parent,
                   TextView name);

}  // namespace lumenkit::forms
