// Conversion between twips (1/1440 inch) and pixels at the screen's real resolution.
#pragma once

#include "frame/host/constituent.h"
#include "runtime/win32/windows_header.h"

namespace lumenkit::win32 {

/// Pixels per inch of the screen, in each direction.
struct Resolution {
    int x = 96;
    int y = 96;

    static Resolution OfScreen();
};

inline SIZE SizeOf(const RECT& box) {
    return {box.right - box.left, box.bottom - box.top};
}

inline constexpr int twipsPerInch = 1440;

/// Rounds to the nearest whole pixel in the platform's range. Returns 0 for a NaN.
int ToPixels(float twips, int pixelsPerInch);
float ToTwips(int pixels, int pixelsPerInch);

/// Rounds each edge of the placement separately, so that adjacent placements stay adjacent.
RECT ToPixels(const host::Placement& placement, Resolution resolution);
host::Placement ToTwips(const RECT& rectangle, Resolution resolution);

}  // namespace lumenkit::win32
