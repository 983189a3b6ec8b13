#pragma once

#include "frame/text.h"

namespace lumenkit::lumenform {

/// Returns the words of a rich text, without fonts, colours and pictures. Lines end in LF. A text
/// that does not begin as a rich text is returned unchanged. Escaped bytes are in `codePage`, one
/// of 1250 to 1258.
Text WordsOfRichText(TextView rich, int codePage);

}  // namespace lumenkit::lumenform
