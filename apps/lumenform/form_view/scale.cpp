#include "apps/lumenform/form_view/scale.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

struct Unit {
    float x;
    float y;
};

enum ScaleMode : std::int32_t { User = 0, Twips = 1, Points = 2, Pixels = 3, Centimetres = 7 };

Unit UnitOf(std::int32_t mode) {
    constexpr float twipsPerInch = 1440;
    constexpr float millimetresPerInch = 25.4F;
    constexpr float millimetre = twipsPerInch / millimetresPerInch;
    constexpr std::array<Unit, Centimetres + 1> fixed = {{
        {1, 1},
        {1, 1},
        {20, 20},
        {},
        {120, 240},
        {twipsPerInch, twipsPerInch},
        {millimetre, millimetre},
        {10 * millimetre, 10 * millimetre},
    }};
    if (mode == Pixels) {
        const qt::TwipsPerPixel& screen = qt::TwipsPerPixel::OfScreens();
        return {static_cast<float>(screen.x), static_cast<float>(screen.y)};
    }
    return fixed[static_cast<std::size_t>(mode)];
}

}  // namespace

Scale Scale::Of(const BlockReader& container, QSizeF room) {
    const std::int32_t mode = container.Choice(u"ScaleMode", Centimetres + 1, Twips);
    const Unit unit = UnitOf(mode);
    Scale scale{{.unit = unit.x}, {.unit = unit.y}};
    if (mode == User) {
        scale.across.origin = container.Number(u"ScaleLeft", 0);
        scale.down.origin = container.Number(u"ScaleTop", 0);
        const auto width = static_cast<float>(room.width());
        const auto height = static_cast<float>(room.height());
        const float unitsAcross = container.Number(u"ScaleWidth", width);
        const float unitsDown = container.Number(u"ScaleHeight", height);
        const float x = width / unitsAcross;
        const float y = height / unitsDown;
        if (std::isnormal(x) && std::isnormal(y)) {
            scale.across.unit = x;
            scale.down.unit = y;
        }
    }
    return scale;
}

std::int32_t ExtentOf(float twips) {
    constexpr double perTwip = 2540.0 / 1440.0;
    return static_cast<std::int32_t>(std::lround(twips * perTwip));
}

}  // namespace lumenkit::lumenform
