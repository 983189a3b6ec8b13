#include "apps/lumenform/design/model/area.h"

#include <algorithm>
#include <cmath>

namespace lumenkit::lumenform {

namespace {

// One dimension of StepInside. Rounds inwards, so that a whole number stays inside.
double StepInto(double start, double length, double areaStart, double areaEnd) {
    if (start + length > areaEnd) {
        const double step = std::floor(areaEnd - length - start);
        return start + step < areaStart ? std::ceil(areaStart - start) : step;
    }
    return start < areaStart ? std::ceil(areaStart - start) : 0;
}

}  // namespace

QRectF RectOf(const host::Placement& place) {
    return {place.left, place.top, std::max(place.width, 1.0F), std::max(place.height, 1.0F)};
}

QPointF StepInside(const QRectF& rect, const QRectF& area) {
    return {StepInto(rect.left(), rect.width(), area.left(), area.right()),
            StepInto(rect.top(), rect.height(), area.top(), area.bottom())};
}

host::Placement Moved(host::Placement place, QPointF by) {
    place.left += static_cast<float>(by.x());
    place.top += static_cast<float>(by.y());
    return place;
}

}  // namespace lumenkit::lumenform
