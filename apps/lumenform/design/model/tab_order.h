#pragma once

#include "forms/block.h"
#include "forms/document.h"

namespace lumenkit::form {

/// Gives a control of the form the turn `turn`, from 0, when Tab is pressed. The others keep their
/// order; a TabIndex changes only where it must. A control without one is left alone.
void GiveTurn(const forms::Document& document, const forms::Block& control, std::int32_t turn);

}  // namespace lumenkit::form
