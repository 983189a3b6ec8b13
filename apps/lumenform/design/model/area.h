#pragma once

#include <QRectF>

#include "frame/host/constituent.h"

namespace lumenkit::lumenform {

/// Returns the place as a rectangle, at least one twip wide and high: lines have no height.
QRectF RectOf(const host::Placement& place);

/// Returns how far to move `rect` so that it is inside `area`. A rectangle that is too large begins
/// at the upper left corner of the area. In whole twips.
QPointF StepInside(const QRectF& rect, const QRectF& area);

/// Moves a place by a distance in twips.
host::Placement Moved(host::Placement place, QPointF by);

}  // namespace lumenkit::lumenform
