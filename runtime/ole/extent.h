// A control's size: pixels, as it is shown, and hundredths of a millimetre, as containers keep it.
#pragma once

#include "runtime/ole/ole_header.h"
#include "runtime/win32/pixels.h"

namespace lumenkit::ole {

inline constexpr int himetricPerInch = 2540;

/// Nearest; whole pixels survive the way there and back.
SIZE ToPixels(const SIZEL& himetric, win32::Resolution resolution);
SIZEL ToHimetric(const SIZE& pixels, win32::Resolution resolution);

/// What the container said last stands for as long as it means the size in pixels that there is:
/// asking and setting in turn does not make the control creep.
class Extent {
 public:
    explicit Extent(SIZE pixels) : himetric_(ToHimetric(pixels, resolution_)) {}

    const SIZEL& Get() const { return himetric_; }
    SIZE Pixels() const { return ToPixels(himetric_, resolution_); }
    void Assign(const SIZEL& himetric) { himetric_ = himetric; }
    void Follow(SIZE pixels);
    win32::Resolution GetResolution() const { return resolution_; }

 private:
    win32::Resolution resolution_ = win32::Resolution::OfScreen();
    SIZEL himetric_;
};

inline SIZE SizeOf(const RECT& place) {
    return {place.right - place.left, place.bottom - place.top};
}
inline bool SameSize(const SIZE& left, const SIZE& right) {
    return left.cx == right.cx && left.cy == right.cy;
}

}  // namespace lumenkit::ole
