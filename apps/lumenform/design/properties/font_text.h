#pragma once

#include "frame/host/font.h"
#include "frame/text.h"
#include "runtime/qt/font.h"

namespace lumenkit::lumenform {

/// Returns the font as text: "MS Sans Serif, 8.25 pt bold italic". Empty if `font` is null.
Text FontText(const host::Font* font);

/// Returns the font that such a text describes. The character set, which is not in the text, is
/// that of `former`, which may be null. Raises 380 with the reason if the text is malformed or the
/// size invalid.
std::shared_ptr<qt::Font> FontFromText(TextView text, const host::Font* former);

}  // namespace lumenkit::lumenform
