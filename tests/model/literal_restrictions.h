// The restriction of a text, step by step on whole strings: slow and easy to check.
#pragma once

#include "frame/text.h"

namespace lumenkit::testing {

struct LiteralRestriction {
    Text s;
    bool refused = false;
    bool trimmed = false;

    // The number of times that each situation occurred.
    int realCuts = 0;          ///< lines cut whose surplus was not only blanks
    int blankCuts = 0;         ///< lines cut whose surplus was only blanks
    int skippedPositions = 0;  ///< searches that went on too far after a cut
    int overlookedBreaks = 0;  ///< of these, searches that passed over a line break
    int lateEnds = 0;          ///< cuts that left the position past the end
    int linesDropped = 0;      ///< surplus lines cut
    int patternMatches = 0;    ///< surplus lines of one non-blank character
};

/// `maxCharsPerLine` and `maxLines` are not negative and not both 0.
LiteralRestriction RestrictLiterally(const Text& text, int maxCharsPerLine, int maxLines,
                                     bool apply);

}  // namespace lumenkit::testing
