#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "apps/lumenform/design/canvas/ruler_steps.h"

namespace lumenkit::lumenform {

/// A ruler along an edge of the canvas. Places are in pixels of the ruler along its direction.
class Ruler final : public QWidget {
 public:
    explicit Ruler(Qt::Orientation way, QWidget* parent = nullptr);

    /// How coordinates of the form lie along the ruler.
    struct Units {
        double origin = 0;      ///< the place of the edge of the form
        double coordinate = 0;  ///< the coordinate of the edge
        double pixels = 1;      ///< per unit; negative if the coordinates grow backwards

        double PlaceOf(double unit) const { return origin + (unit - coordinate) * pixels; }
        double UnitAt(double place) const { return (place - origin) / pixels + coordinate; }

        friend bool operator==(const Units&, const Units&) = default;
    };
    void SetUnits(const Units& units);

    struct Range {
        int begin;
        int length;

        friend bool operator==(const Range&, const Range&) = default;
    };
    /// Shades the places of the selection.
    void SetSelection(std::optional<Range> selection);
    /// Marks the place of the mouse. Repaints only the mark.
    void SetPointer(std::optional<int> place);

    /// The width of a horizontal ruler's strip.
    int Thickness() const;

    struct Label {
        QString text;
        double place;
    };
    /// The labels that are shown now, and the steps between them.
    std::vector<Label> Labels() const;
    RulerSteps Steps() const;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    int Length() const;
    QRect Strip(int begin, int length) const;
    void Repaint(const std::optional<Range>& range);
    static QString TextOf(double unit, const RulerSteps& steps);
    double RoomFor(const RulerSteps& steps) const;
    void PaintTicks(QPainter& painter) const;
    void PaintLabel(QPainter& painter, const Label& label) const;

    Qt::Orientation way_;
    Units units_;
    std::optional<Range> selection_;
    std::optional<int> pointer_;
};

}  // namespace lumenkit::lumenform
