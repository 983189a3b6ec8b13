// Restricts a text to a number of characters per line and a number of lines.
//
// Characters are UTF-16 units and positions count them from 1. CR LF pairs separate lines. A lone
// CR or LF is an ordinary character, and so is all white space except the blank.
#pragma once

#include <cstdint>

#include "frame/text.h"

namespace lumenkit {

/// 0 means no limit; neither field is negative.
struct TextLimits {
    std::int16_t maxCharsPerLine = 0;
    std::int16_t maxLines = 0;
};

enum class RestrictionMode {
    Plain,  ///< everything beyond the limits is cut
    Apply,  ///< a text with characters other than blanks past a line's limit is refused
};

struct Restriction {
    bool refused = false;  ///< characters other than blanks did not fit
    bool trimmed = false;  ///< blanks or lines were cut
    Text cut;              ///< the remaining text, if anything was cut

    bool Fits() const { return !refused && !trimmed; }

    /// Returns the restricted form of `text`, which must be the text that was restricted: a view of
    /// `text` if it fits, else of `cut`.
    TextView Of(TextView text) const { return Fits() ? text : cut; }
};

/// Restricts `text` to `limits` in a single pass, in time linear in the length of the text. Copies
/// nothing if the text fits. In apply mode, the first refusal ends the work, and nothing is cut.
/// Raises 6 for a text of about 2^31 units or more.
Restriction Restrict(TextView text, TextLimits limits, RestrictionMode mode);

}  // namespace lumenkit
