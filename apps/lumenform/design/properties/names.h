#pragma once

#include <cstdint>
#include <optional>

#include "forms/block.h"
#include "forms/document.h"
#include "frame/text.h"

namespace lumenkit::form {

/// Gives a control of a form, or the form itself, another name. Raises 380 with the reason for
/// what is no name and for one that is taken; the element of an array shares its name with others
/// of its class.
void RenameIn(forms::Document& document, forms::Block& block, TextView name);

/// Makes a control an element of an array, or with nothing a control alone. Raises 380 with the
/// reason where another control has the same name and no index or the same one.
void SetIndexIn(forms::Block& form, forms::Block& control, std::optional<std::int32_t> index);

}  // namespace lumenkit::form
