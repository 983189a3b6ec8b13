#pragma once

#include <cstdint>

#include "forms/block.h"

namespace lumenkit::form {

/// Gives the control another turn when Tab is pressed; the others make room, and their numbers have
/// no gaps then. A turn beyond the last is the last. Raises 380 for a negative one.
void MoveInTabOrder(forms::Block& form, forms::Block& control, std::int32_t turn);

}  // namespace lumenkit::form
