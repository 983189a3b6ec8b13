#pragma once

#include "frame/host/font.h"
#include "frame/text.h"
#include "runtime/qt/font.h"

namespace lumenkit::form {

/// A font in words: "MS Sans Serif, 8.25 pt bold italic". Empty for nothing.
Text FontText(const host::Font* font);

/// The font that such words stand for, with what they do not say (the character set) as `former`,
/// which may be null, has it. Raises 380 with the reason for what are no such words, and for a size
/// that no font has.
std::shared_ptr<qt::Font> FontFromText(TextView text, const host::Font* former);

}  // namespace lumenkit::form
