// What a label's caption is and how it is to be drawn.
#pragma once

#include <cstdint>

#include "frame/text.h"

namespace lumenkit {

/// The documented fields that the drawing reads. The label owns and assigns them.
struct CaptionSettings {
    Text Caption;
    Text BulletPrefix;
    std::int16_t BulletIndent = 0;  ///< twips
    bool WordWrap = false;
    /// False once Caption changed: the next drawing compiles it first.
    bool IsCompiled = false;
    /// The screen's, as they were when the control was initialised.
    std::int16_t TwipsPerPixelX = 0;
    std::int16_t TwipsPerPixelY = 0;
};

}  // namespace lumenkit
