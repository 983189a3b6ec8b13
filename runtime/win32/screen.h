#pragma once

#include <cstdint>

#include "frame/host/screen.h"
#include "runtime/win32/pixels.h"

namespace lumenkit::win32 {

/// The screen, described by its resolution. If a pixel is not a whole number of twips, the nearest
/// whole number is reported.
class Screen final : public host::Screen {
 public:
    explicit Screen(Resolution resolution) : resolution_(resolution) {}

    std::int16_t TwipsPerPixelX() const override { return TwipsOf(resolution_.x); }
    std::int16_t TwipsPerPixelY() const override { return TwipsOf(resolution_.y); }

 private:
    static std::int16_t TwipsOf(int pixelsPerInch) {
        const int twips = (twipsPerInch + pixelsPerInch / 2) / pixelsPerInch;
        return static_cast<std::int16_t>(twips < 1 ? 1 : twips);
    }

    Resolution resolution_;
};

}  // namespace lumenkit::win32
