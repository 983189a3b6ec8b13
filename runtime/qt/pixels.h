// Twips (1/1440 inch) and pixels. A pixel here is Qt's, independent of the device: on a screen that
// is scaled, it covers a square of real pixels, in number not always whole.
#pragma once

#include <QRect>

#include "frame/host/constituent.h"

namespace lumenkit::qt {

/// Twips in one pixel, each way. The numbers have few enough binary digits for products with text
/// widths to be exact.
struct TwipsPerPixel {
    double x = 15;
    double y = 15;

    /// By the logical resolution of the primary screen, which is the one of all fonts.
    static const TwipsPerPixel& OfScreens();
};

/// Nearest whole pixel.
int ToPixels(double twips, double twipsPerPixel);

/// A placement's edges are rounded each by itself, so that neighbours stay neighbours.
QRect ToPixels(const host::Placement& placement);

}  // namespace lumenkit::qt
