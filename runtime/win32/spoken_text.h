// Texts as screen readers say them.
#pragma once

#include "frame/text.h"

namespace lumenkit::win32 {

/// Returns the caption as it is displayed: without the ampersand that marks a mnemonic, and with
/// one ampersand for two.
Text WithoutMnemonic(TextView caption);

/// Returns the words of the text with one blank between them.
Text SpokenLine(TextView text);

}  // namespace lumenkit::win32
