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
    const auto mix = [share](int one, int other) {
        return static_cast<int>(std::lround(one + (other - one) * share));
    };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
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

QColor DimmedText(const QPalette& palette) {
    constexpr int mostPercent = 40;
    constexpr int step = 5;
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    for (int percent = mostPercent; percent > 0; percent -= step) {
        if (const QColor dimmed = Blend(text, base, percent / 100.0);
            Contrast(dimmed, base) >= textContrast) {
            return dimmed;
        }
    }
    return text;
}

QColor MarkOn(const QColor& ground, const QPalette& palette) {
    return Legible(palette.color(QPalette::Active, QPalette::Highlight), ground, signContrast);
}

}  // namespace lumenkit::lumenform
