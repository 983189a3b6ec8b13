#pragma once

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <array>

namespace lumenkit::lumenform {

/// The scale at which the designer shows a form. Converts between the pixels of the form's view,
/// which always has its real size, and the pixels of the desk.
struct Zoom {
    static constexpr int smallest = 25;  ///< percent
    static constexpr int full = 100;
    static constexpr int largest = 400;
    /// The scales for menus and for zooming by steps.
    static constexpr std::array<int, 7> steps = {smallest, 50, 75, full, 150, 200, largest};

    int percent = full;
    QPoint origin;  ///< the upper left corner of the view on the desk

    double Factor() const { return static_cast<double>(percent) / full; }
    bool IsFull() const { return percent == full; }

    QPointF ToDesk(QPointF onView) const { return origin + onView * Factor(); }
    QPointF ToView(QPointF onDesk) const { return (onDesk - origin) / Factor(); }
    /// Rounds each edge separately, so that adjacent rectangles stay adjacent.
    QRect ToDesk(const QRect& onView) const;
    /// Returns the pixel of the view under the middle of a pixel of the desk.
    QPoint PixelAt(QPoint onDesk) const;

    /// Returns the next larger or smaller one of the steps, or the last one.
    static int Next(int percent, bool larger);

    friend bool operator==(const Zoom&, const Zoom&) = default;
};

}  // namespace lumenkit::lumenform
