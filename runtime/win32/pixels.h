// Twips (1/1440 inch) and pixels at the screen's real resolution.
#pragma once

#include "frame/host/constituent.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Pixels per inch of the screen, each way.
struct Resolution {
    int x = 96;
    int y = 96;

    static Resolution OfScreen();
};

inline constexpr int twipsPerInch = 1440;

/// Nearest whole pixel, as far out as the platform reaches; 0 for what is no number.
int ToPixels(float twips, int pixelsPerInch);
float ToTwips(int pixels, int pixelsPerInch);

/// A placement's edges are rounded each by itself, so that neighbours stay neighbours.
RECT ToPixels(const host::Placement& placement, Resolution resolution);
host::Placement ToTwips(const RECT& rectangle, Resolution resolution);

}  // namespace lumenkit::win32
