#pragma once

#include <functional>

#include "apps/lumenform/design/canvas/gesture.h"
#include "apps/lumenform/design/model/drag_start.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Draws the rectangle for a new control, or a line from one of its corners to the opposite one.
class DrawingGesture final : public Gesture {
 public:
    using Done =
        std::function<void(LiveControl* container, const host::Placement& place, DragStart start)>;

    /// `done` receives the place in the container, which is null for the form. A press without a
    /// drag gives the usual size of the class.
    DrawingGesture(const Ground& ground, Text className, QPoint pressedAt, Done done);

    void DragTo(const Pointer& pointer) override;
    void Finish() override;
    std::optional<host::Placement> Place() const override { return place_; }
    QRect Band() const override;
    QRect Painted() const override;
    void Paint(QPainter& painter, const QPalette& palette) const override;

 private:
    QRect DrawnRect() const;
    bool IsTooSmall() const;

    Ground ground_;
    Text className_;
    LiveControl* container_;
    QPoint pressedAt_;
    Done done_;
    host::Placement place_;
    DragStart start_;
    bool isLine_;
    bool isDragged_ = false;
};

}  // namespace lumenkit::lumenform
