// Holding a text to at most so many characters a line and so many lines.
//
// Characters are UTF-16 units and positions count them from 1. Lines are what stands between CR LF
// pairs; a lone CR or LF is a character like any other, and so is every white space but the blank.
#pragma once

#include <cstdint>

#include "frame/text.h"

namespace lumenkit {

/// 0 stands for no limit; neither is negative.
struct TextLimits {
    std::int16_t maxCharsPerLine = 0;
    std::int16_t maxLines = 0;
};

enum class RestrictionMode {
    Plain,  ///< whatever is too much is cut
    Apply,  ///< characters other than blanks past a line's limit are refused
};

struct Restriction {
    bool refused = false;  ///< more than blanks did not fit
    bool trimmed = false;  ///< blanks or lines were cut
    Text cut;              ///< what was left, where something was cut

    bool Fits() const { return !refused && !trimmed; }

    /// What became of `text`, which is the one that was restricted: a view of it where it fits.
    TextView Of(TextView text) const { return Fits() ? text : cut; }
};

/// Holds `text` to `limits` in one pass, in time linear in the text whatever has to be cut. Copies
/// nothing of a text that fits; in apply mode the first refusal ends the work, and nothing is cut.
/// Raises 6 for a text of about 2^31 units or more.
Restriction Restrict(TextView text, TextLimits limits, RestrictionMode mode);

}  // namespace lumenkit
