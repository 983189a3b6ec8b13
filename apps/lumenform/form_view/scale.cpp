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

Scale Scale::Of(const BlockReader& container, float width, float height) {
    Scale scale;
    const std::int32_t mode = container.Choice(u"ScaleMode", Centimetres + 1, Twips);
    Unit unit = UnitOf(mode);
    if (mode == User) {
        scale.left_ = container.Number(u"ScaleLeft", 0);
        scale.top_ = container.Number(u"ScaleTop", 0);
        const float unitsAcross = container.Number(u"ScaleWidth", width);
        const float unitsDown = container.Number(u"ScaleHeight", height);
        if (unitsAcross != 0 && unitsDown != 0 && width > 0 && height > 0) {
            unit = {width / unitsAcross, height / unitsDown};
        }
    }
    scale.x_ = unit.x;
    scale.y_ = unit.y;
    return scale;
}

host::Placement Scale::ToTwips(const host::Placement& units) const {
    return {.left = (units.left - left_) * x_,
            .top = (units.top - top_) * y_,
            .width = units.width * x_,
            .height = units.height * y_};
}

host::Placement Scale::FromTwips(const host::Placement& twipsPlace) const {
    return {.left = twipsPlace.left / x_ + left_,
            .top = twipsPlace.top / y_ + top_,
            .width = twipsPlace.width / x_,
            .height = twipsPlace.height / y_};
}

std::int32_t ExtentOf(float twips) {
    constexpr double perTwip = 2540.0 / 1440.0;
    return static_cast<std::int32_t>(std::lround(twips * perTwip));
}

}  // namespace lumenkit::lumenform
