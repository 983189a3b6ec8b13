// The restriction of a text, step by step on whole strings: slow and easy to check.
#pragma once

#include "frame/text.h"

namespace lumenkit::testing {

struct LiteralRestriction {
    Text s;
    bool refused = false;
    bool trimmed = false;

    // What happened on the way.
    int realCuts = 0;          ///< lines cut with more than blanks in the surplus
    int blankCuts = 0;         ///< lines cut with only blanks
    int skippedPositions = 0;  ///< searches that went on from behind a cut
    int overlookedBreaks = 0;  ///< of these, ones that passed over a line break
    int lateEnds = 0;          ///< cuts that left the position behind the end
    int linesDropped = 0;      ///< surplus lines cut
    int patternMatches = 0;    ///< surplus lines of one real character
};

/// `maxCharsPerLine` and `maxLines` are not negative and not both 0.
LiteralRestriction RestrictLiterally(const Text& text, int maxCharsPerLine, int maxLines,
                                     bool apply);

}  // namespace lumenkit::testing
