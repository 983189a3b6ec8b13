#include "apps/lumenform/design/canvas/ruler_steps.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace lumenkit::lumenform {

namespace {

constexpr double closestTicks = 5;  // pixels between ticks
constexpr int lowestPower = -6;
constexpr int highestPower = 12;

// The numbers of parts for labels at 1, 2 and 5 times a power of ten, so that ticks are at such
// numbers, too.
struct Kind {
    int factor;
    std::array<int, 4> parts;
};
constexpr std::array kinds = {Kind{1, {10, 5, 2, 1}}, Kind{2, {4, 2, 1, 1}}, Kind{5, {5, 1, 1, 1}}};

int PartsFor(const Kind& kind, double pixels) {
    for (const int parts : kind.parts) {
        if (pixels / parts >= closestTicks) {
            return parts;
        }
    }
    return 1;
}

}  // namespace

int RulerSteps::Decimals() const {
    constexpr double tiny = 1e-9;
    const auto power = static_cast<int>(std::floor(std::log10(labels) + tiny));
    return std::clamp(-power, 0, -lowestPower);
}

RulerSteps RulerStepsFor(double pixelsPerUnit,
                         const std::function<double(const RulerSteps&)>& room) {
    RulerSteps steps;
    // Labels are at least as wide as ticks are apart.
    const int begin = static_cast<int>(std::floor(std::log10(closestTicks / pixelsPerUnit)));
    for (int power = std::max(begin, lowestPower); power <= highestPower; ++power) {
        for (const Kind& kind : kinds) {
            steps.labels = kind.factor * std::pow(10.0, power);
            const double pixels = steps.labels * pixelsPerUnit;
            steps.parts = PartsFor(kind, pixels);
            if (pixels >= closestTicks && pixels >= room(steps)) {
                return steps;
            }
        }
    }
    return steps;
}

}  // namespace lumenkit::lumenform
