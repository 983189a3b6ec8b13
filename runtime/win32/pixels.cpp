#include "runtime/win32/pixels.h"

#include <algorithm>
#include <cmath>

#include "runtime/win32/device.h"

namespace lumenkit::win32 {

namespace {

// Parts of the platform keep window coordinates in 16 bits.
constexpr double farthest = 32767;

}  // namespace

Resolution Resolution::OfScreen() {
    const WindowDevice screen(nullptr);
    return {GetDeviceCaps(screen.Handle(), LOGPIXELSX), GetDeviceCaps(screen.Handle(), LOGPIXELSY)};
}

int ToPixels(float twips, int pixelsPerInch) {
    const double pixels = std::round(static_cast<double>(twips) * pixelsPerInch / twipsPerInch);
    if (std::isnan(pixels)) {
        return 0;
    }
    return static_cast<int>(std::clamp(pixels, -farthest, farthest));
}

float ToTwips(int pixels, int pixelsPerInch) {
    return static_cast<float>(static_cast<double>(pixels) * twipsPerInch / pixelsPerInch);
}

RECT ToPixels(const host::Placement& placement, Resolution resolution) {
    return {.left = ToPixels(placement.left, resolution.x),
            .top = ToPixels(placement.top, resolution.y),
            .right = ToPixels(placement.left + placement.width, resolution.x),
            .bottom = ToPixels(placement.top + placement.height, resolution.y)};
}

host::Placement ToTwips(const RECT& rectangle, Resolution resolution) {
    return {.left = ToTwips(static_cast<int>(rectangle.left), resolution.x),
            .top = ToTwips(static_cast<int>(rectangle.top), resolution.y),
            .width = ToTwips(static_cast<int>(rectangle.right - rectangle.left), resolution.x),
            .height = ToTwips(static_cast<int>(rectangle.bottom - rectangle.top), resolution.y)};
}

}  // namespace lumenkit::win32
