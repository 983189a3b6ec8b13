// The slow twin of the caption page's shortcuts and magnifier: every step done for itself, unit by
// unit. It shares nothing with the page but the type of its texts.
#pragma once

#include <string>

#include "frame/text.h"

namespace lumenkit::testing {

/// A caption box as the page's keys leave it. Places are in units from 0, the end exclusive.
struct LiteralCaptionBox {
    Text text;
    long SelStart = 0;
    long SelEnd = 0;
    int beeps = 0;
};

/// Presses the key with this character code; says which of the ways was gone.
std::string PressLiterally(LiteralCaptionBox& box, int code);

struct LiteralMagnifier {
    Text left;
    Text middle;
    bool middleIsSelection = false;
    Text right;
};

LiteralMagnifier MagnifyLiterally(const LiteralCaptionBox& box);

}  // namespace lumenkit::testing
