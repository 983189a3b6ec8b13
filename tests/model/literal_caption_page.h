// A slow, literal model of the caption page's shortcuts and magnifier. Each step is separate and
// works unit by unit. It shares nothing with the page except the type of its texts.
#pragma once

#include <string>

#include "frame/text.h"

namespace lumenkit::testing {

/// The state of a caption box. Places are in units from 0; the end is exclusive.
struct LiteralCaptionBox {
    Text text;
    long SelStart = 0;
    long SelEnd = 0;
    int beeps = 0;
};

/// Presses the key with this character code. Returns the name of the branch taken.
std::string PressLiterally(LiteralCaptionBox& box, int code);

struct LiteralMagnifier {
    Text left;
    Text middle;
    bool middleIsSelection = false;
    Text right;
};

LiteralMagnifier MagnifyLiterally(const LiteralCaptionBox& box);

}  // namespace lumenkit::testing
