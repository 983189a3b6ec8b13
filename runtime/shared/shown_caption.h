// Captions as the platforms take them, in which `&` marks the mnemonic and `&&` is an ampersand.
#pragma once

#include "frame/text.h"

namespace lumenkit::shared {

/// Returns the caption with a mark at the first letter that is `accessKey` in either case, and with
/// two ampersands for each one. Without an access key (0), returns the caption.
Text WithAccessKey(TextView caption, char16_t accessKey);

/// Returns the text with a visible sign in the place of each CR, LF and tab. All fonts of Western
/// code pages have the signs.
Text WithVisibleSigns(TextView text);

}  // namespace lumenkit::shared
