#pragma once

#include "frame/text.h"

namespace lumenkit::svg {

/// Returns the families for a font in the notation of style sheets, best first: the font itself, a
/// common font that resembles it and the kind of font.
Text FontFamily(TextView name);

}  // namespace lumenkit::svg
