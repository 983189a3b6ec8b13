#include "runtime/ole/control/extent.h"

namespace lumenkit::ole {

namespace {

LONG Scaled(LONG length, int from, int to) {
    return MulDiv(static_cast<int>(length), to, from);
}

}  // namespace

SIZE ToPixels(const SIZEL& himetric, win32::Resolution resolution) {
    return {Scaled(himetric.cx, himetricPerInch, resolution.x),
            Scaled(himetric.cy, himetricPerInch, resolution.y)};
}

SIZEL ToHimetric(const SIZE& pixels, win32::Resolution resolution) {
    return {Scaled(pixels.cx, resolution.x, himetricPerInch),
            Scaled(pixels.cy, resolution.y, himetricPerInch)};
}

bool IsPossibleLength(LONG himetric, int pixelsPerInch) {
    constexpr LONG longest = 32767;  // pixels
    const LONG pixels = Scaled(himetric, himetricPerInch, pixelsPerInch);
    return himetric >= 0 && pixels >= 0 && pixels <= longest;
}

void Extent::Follow(SIZE pixels) {
    if (!SameSize(Pixels(), pixels)) {
        himetric_ = ToHimetric(pixels, resolution_);
    }
}

}  // namespace lumenkit::ole
