#pragma once

#include "forms/font_description.h"
#include "frame/host/font.h"
#include "runtime/memory/form.h"

namespace lumenkit::windowless {

/// Returns a new font with the saved attributes. Raises 380 for a size that a font does not accept.
host::FontRef SavedFont(const memory::Form& form, const forms::FontDescription& description);

}  // namespace lumenkit::windowless
