// The round mark in front of a bulleted line, painted from filled boxes on the pixel grid.
#pragma once

#include <cstdint>

#include "frame/host/surface.h"

namespace lumenkit {

/// Paints the mark with its left edge at `x` and its middle at `centreY`; `radius` selects its
/// size. All lengths are in twips; the pixel sizes are those of the screen. Moves the pen. Raises
/// 11 for a pixel size of 0.
void PaintBullet(host::Surface& surface, std::int16_t twipsPerPixelX, std::int16_t twipsPerPixelY,
                 float x, float centreY, float radius);

}  // namespace lumenkit
