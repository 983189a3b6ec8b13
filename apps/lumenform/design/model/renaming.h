#pragma once

#include <cstdint>
#include <optional>

#include "forms/block.h"
#include "forms/document.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Renames a control of a form, or the form itself. Raises 380 with the reason if the name is
/// invalid or taken. Elements of a control array of the same class share their name.
void RenameIn(forms::Document& document, forms::Block& block, TextView name);

/// Makes a control an element of a control array, or without `index` a single control. Raises 380
/// with the reason if another control has the same name and no index, or the same name and index.
void SetIndexIn(forms::Block& form, forms::Block& control, std::optional<std::int32_t> index);

}  // namespace lumenkit::lumenform
