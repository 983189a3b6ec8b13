// The settings of a label that affect the drawing of its caption.
#pragma once

#include <cstdint>

#include "frame/text.h"

namespace lumenkit {

/// The fields that the renderer reads. The label owns and assigns them.
struct CaptionSettings {
    Text Caption;
    Text BulletPrefix;
    std::int16_t BulletIndent = 0;  ///< twips
    bool WordWrap = false;
    /// False after Caption changed: the next drawing compiles it first.
    bool IsCompiled = false;
    /// Pixel sizes of the screen when the control was initialised.
    std::int16_t TwipsPerPixelX = 0;
    std::int16_t TwipsPerPixelY = 0;
};

}  // namespace lumenkit
