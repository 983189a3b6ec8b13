#pragma once

#include <span>

#include "frame/text.h"

namespace lumenkit {

/// Returns the word that `written` was probably meant to be, ignoring case and surrounding blanks:
/// the same word, or the nearest one. A slip is a missing, extra or wrong letter or a swap of
/// neighbours. Words of up to 2 units allow no slip, up to 5 units one, longer words two. Returns
/// an empty text if no word is near or `written` is longer than 40 units. Ignores words of more
/// than 40 units.
TextView Nearest(TextView written, std::span<const TextView> words);

}  // namespace lumenkit
