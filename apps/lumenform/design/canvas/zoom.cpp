#include "apps/lumenform/design/canvas/zoom.h"

#include <algorithm>
#include <cmath>

namespace lumenkit::lumenform {

QRect Zoom::ToDesk(const QRect& onView) const {
    const QPointF begin = ToDesk(QPointF(onView.topLeft()));
    const QPointF end = ToDesk(QPointF(onView.bottomRight() + QPoint(1, 1)));
    return {begin.toPoint(), end.toPoint() - QPoint(1, 1)};
}

QPoint Zoom::PixelAt(QPoint onDesk) const {
    constexpr QPointF middle(0.5, 0.5);
    const QPointF at = ToView(onDesk + middle);
    return {static_cast<int>(std::floor(at.x())), static_cast<int>(std::floor(at.y()))};
}

int Zoom::Next(int percent, bool larger) {
    if (larger) {
        const auto* const next = std::ranges::upper_bound(steps, percent);
        return next == steps.end() ? largest : *next;
    }
    const auto* const next = std::ranges::lower_bound(steps, percent);
    return next == steps.begin() ? smallest : *(next - 1);
}

}  // namespace lumenkit::lumenform
