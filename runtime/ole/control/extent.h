// The size of a control: in pixels, as it is shown, and in hundredths of a millimetre, as
// containers store it.
#pragma once

#include "runtime/ole/values/ole_header.h"
#include "runtime/win32/pixels.h"

namespace lumenkit::ole {

inline constexpr int himetricPerInch = 2540;

/// Rounds to the nearest value. A conversion of whole pixels to hundredths of a millimetre and back
/// returns the same pixels.
SIZE ToPixels(const SIZEL& himetric, win32::Resolution resolution);
SIZEL ToHimetric(const SIZE& pixels, win32::Resolution resolution);

/// Whether a window can have this length, given in hundredths of a millimetre.
bool IsPossibleLength(LONG himetric, int pixelsPerInch);

/// A size in hundredths of a millimetre. The last value from the container is kept as long as it
/// corresponds to the current size in pixels, so that reading and setting the size in turn does not
/// change it step by step.
class Extent {
 public:
    Extent(SIZE pixels, win32::Resolution resolution)
        : resolution_(resolution), himetric_(ToHimetric(pixels, resolution)) {}

    const SIZEL& Get() const { return himetric_; }
    SIZE Pixels() const { return ToPixels(himetric_, resolution_); }
    void Assign(const SIZEL& himetric) { himetric_ = himetric; }
    void Follow(SIZE pixels);
    win32::Resolution GetResolution() const { return resolution_; }

 private:
    win32::Resolution resolution_;
    SIZEL himetric_;
};

inline bool SameSize(const SIZE& left, const SIZE& right) {
    return left.cx == right.cx && left.cy == right.cy;
}

}  // namespace lumenkit::ole
