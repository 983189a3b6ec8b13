#pragma once

#include "forms/block.h"
#include "forms/document.h"

namespace lumenkit::lumenform {

/// Moves a control to the position `turn`, from 0, in the tab order. A position beyond the end is
/// the last one. The others keep their order. Changes as few TabIndex values as possible. Raises
/// 380 if `turn` is negative.
void GiveTurn(const forms::Document& document, forms::Block& control, std::int32_t turn);

}  // namespace lumenkit::lumenform
