#pragma once

#include <span>

#include "frame/text.h"

namespace lumenkit::check {

/// The word that `written` was probably meant to be, without regard to case and to blanks around
/// it: the same one, or the nearest by letters left out, put in, replaced or swapped with their
/// neighbour. Of words up to 2 units none, up to 5 one, of longer ones two such slips are forgiven.
/// Empty where no word is near. `written` and the words are looked at in full only up to 40 units.
TextView Nearest(TextView written, std::span<const TextView> words);

}  // namespace lumenkit::check
