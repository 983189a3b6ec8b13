#include "runtime/qt/pixels.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace lumenkit::qt {

namespace {

constexpr double twipsPerInch = 1440;
constexpr double usualResolution = 96;

double TwipsAt(double pixelsPerInch) {
    constexpr double places = 1048576;  // 20 binary digits
    const double resolution = pixelsPerInch > 0 ? pixelsPerInch : usualResolution;
    return std::round(twipsPerInch / resolution * places) / places;
}

}  // namespace

const TwipsPerPixel& TwipsPerPixel::OfScreens() {
    static const TwipsPerPixel twips = [] {
        const QScreen* screen = QGuiApplication::primaryScreen();
        return screen == nullptr ? TwipsPerPixel{}
                                 : TwipsPerPixel{TwipsAt(screen->logicalDotsPerInchX()),
                                                 TwipsAt(screen->logicalDotsPerInchY())};
    }();
    return twips;
}

int ToPixels(double twips, double twipsPerPixel) {
    constexpr double farthest = 1 << 23;  // beyond the range of widget coordinates
    return static_cast<int>(std::round(std::clamp(twips / twipsPerPixel, -farthest, farthest)));
}

QRect ToPixels(const host::Placement& placement) {
    const TwipsPerPixel& twips = TwipsPerPixel::OfScreens();
    const auto edge = [](double near, double extent, double perPixel) {
        return ToPixels(near + extent, perPixel);
    };
    const int left = ToPixels(placement.left, twips.x);
    const int top = ToPixels(placement.top, twips.y);
    return {left, top, edge(placement.left, placement.width, twips.x) - left,
            edge(placement.top, placement.height, twips.y) - top};
}

}  // namespace lumenkit::qt
