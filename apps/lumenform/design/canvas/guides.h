#pragma once

#include <QPainter>
#include <QRect>
#include <optional>
#include <vector>

#include "apps/lumenform/design/canvas/edges.h"
#include "apps/lumenform/design/canvas/gesture.h"

namespace lumenkit::lumenform {

/// Lines at which the edges and the baseline of a dragged control stop, because a control beside it
/// has an edge or its baseline there. Places are in twips of a container.
class Guides {
 public:
    /// Controls in `without`, those that are dragged, have no lines.
    Guides(const Ground& ground, std::vector<LiveControl*> without);

    /// Takes the lines of the controls in a container; null is the form.
    void Enter(const LiveControl* container);

    /// The dragged control before the drag, in the container that was entered.
    struct Dragged {
        const LiveControl* control = nullptr;
        host::Placement from;
        Edges edges;
    };
    /// Returns the distance nearest to `by` at which an edge that moves, or the baseline of a
    /// control that moves as a whole, is on a line, if there is one within a few pixels.
    std::optional<float> Across(const Dragged& dragged, float by) const;
    std::optional<float> Down(const Dragged& dragged, float by) const;

    /// Takes over the lines that the control is on when it is at this place.
    void Show(const Dragged& dragged, const host::Placement& at);
    /// The rectangle that Paint changes, in pixels of the desk.
    QRect Painted() const;
    void Paint(QPainter& painter, const QPalette& palette) const;

 private:
    enum class Kind { Edge, Baseline };
    // A line between two ends. `at` is its position across its direction.
    struct Line {
        Kind kind = Kind::Edge;
        float at = 0;
        float begin = 0;
        float end = 0;
    };
    using Lines = std::vector<Line>;

    static Lines Upright(const Dragged& dragged, const host::Placement& place);
    static Lines Level(const Dragged& dragged, const host::Placement& place);
    static std::optional<float> Nearest(const Lines& own, const Lines& others, float by,
                                        double reach);
    QPointF Reach() const;
    void ShowOn(const Lines& own, const Lines& others, bool isUpright);

    Ground ground_;
    std::vector<LiveControl*> without_;
    const LiveControl* container_ = nullptr;
    Lines upright_;
    Lines level_;
    std::vector<QRect> shown_;  // one pixel wide or high
};

}  // namespace lumenkit::lumenform
