#pragma once

#include "forms/block.h"
#include "forms/document.h"

namespace lumenkit::form {

/// Gives a control of the form the turn `turn`, from 0, when Tab is pressed; one beyond the last is
/// the last. The others keep their order; a TabIndex changes only where it must. Raises 380 for a
/// negative turn.
void GiveTurn(const forms::Document& document, forms::Block& control, std::int32_t turn);

}  // namespace lumenkit::form
