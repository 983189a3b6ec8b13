// Conversion between twips (1/1440 inch) and pixels. A pixel here is Qt's device-independent pixel.
// On a scaled screen it covers a square of device pixels, whose side need not be a whole number.
#pragma once

#include <QRect>

#include "frame/host/constituent.h"

namespace lumenkit::qt {

/// Twips per pixel in each direction. The numbers have few binary digits, so that products with
/// text widths are exact.
struct TwipsPerPixel {
    double x = 15;
    double y = 15;

    /// The values for the logical resolution of the primary screen, which applies to all fonts.
    static const TwipsPerPixel& OfScreens();
};

/// Rounds to the nearest whole pixel.
int ToPixels(double twips, double twipsPerPixel);

/// Rounds each edge of the placement separately, so that adjacent placements stay adjacent.
QRect ToPixels(const host::Placement& placement);

}  // namespace lumenkit::qt
