#include "vlabel/bullet.h"

#include <array>
#include <cmath>
#include <span>

#include "frame/runtime_error.h"

namespace lumenkit {

namespace {

// The boxes of a mark whose radius is at most `largest` pixels.
struct Band {
    float largest;
    std::array<host::PixelBox, 3> boxes;
    std::size_t count;
};

// Tuned by hand for each size: regular formulas look ragged at so few pixels.
constexpr std::array bands = {
    Band{2, {{{0, -1, 1, 0}}}, 1},
    Band{3, {{{0, -1, 2, 1}}}, 1},
    Band{4, {{{0, -1, 3, 0}, {1, -2, 2, 1}}}, 2},
    Band{5, {{{0, -1, 4, 1}, {1, -2, 3, 2}}}, 2},
    Band{6, {{{1, -2, 4, 1}, {0, -1, 5, 0}, {2, -3, 3, 2}}}, 3},
    Band{7, {{{1, -2, 5, 2}, {0, -1, 6, 1}, {2, -3, 4, 3}}}, 3},
    Band{255, {{{1, -3, 6, 2}, {0, -2, 7, 1}, {2, -4, 5, 3}}}, 3},
};

std::span<const host::PixelBox> BoxesOf(float radius) {
    for (const Band& band : bands) {
        if (radius <= band.largest) {
            return std::span(band.boxes).first(band.count);
        }
    }
    return {};
}

}  // namespace

void PaintBullet(host::Surface& surface, std::int16_t twipsPerPixelX, std::int16_t twipsPerPixelY,
                 float x, float centreY, float radius) {
    if (twipsPerPixelX == 0 || twipsPerPixelY == 0) {
        Raise(ErrorNumber::DivisionByZero);
    }
    const auto pixelX = static_cast<float>(twipsPerPixelX);
    const auto pixelY = static_cast<float>(twipsPerPixelY);
    const float originX = std::floor(x / pixelX) * pixelX;
    const float originY = std::floor(centreY / pixelY + 1) * pixelY;
    // The boxes are counted in pixels; only the vertical pixel size selects them.
    for (const host::PixelBox& box : BoxesOf(radius / pixelY + 1)) {
        surface.FillPixels(originX, originY, box, Color{0});
    }
}

}  // namespace lumenkit
