#include "apps/lumenform/design/look/contrast.h"

#include <algorithm>
#include <cmath>

namespace lumenkit::lumenform {

namespace {

double Linear(double channel) {
    constexpr double knee = 0.04045;
    return channel <= knee ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
    return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
           0.0722 * Linear(color.blueF());
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor Blend(const QColor& from, const QColor& to, double share) {
    const auto mix = [share](float one, float other) {
        return static_cast<float>(one + (other - one) * share);
    };
    return QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                            mix(from.blueF(), to.blueF()));
}

QColor Legible(const QColor& color, const QColor& ground, double least) {
    constexpr int steps = 20;
    const QColor end =
        Contrast(Qt::white, ground) > Contrast(Qt::black, ground) ? Qt::white : Qt::black;
    QColor found = color;
    for (int step = 1; step <= steps && Contrast(found, ground) < least; ++step) {
        found = Blend(color, end, static_cast<double>(step) / steps);
    }
    return found;
}

}  // namespace lumenkit::lumenform
