#pragma once

#include <QPainter>
#include <QPixmap>
#include <QPointF>
#include <QRect>
#include <map>
#include <vector>

#include "apps/lumenform/design/canvas/gesture.h"

namespace lumenkit::lumenform {

/// The container that dragged controls get when they are dropped: the one under the mouse. It is
/// their own container as long as the mouse is over the same container as at the press, for example
/// over a frame on which the control lies without being in it. It is also their own container
/// outside the form.
class DropTarget {
 public:
    /// `dragged` are all controls that move; `grabbed` is the one of them under the mouse. Only
    /// those in the same container as this one get another container.
    DropTarget(const Ground& ground, const std::vector<LiveControl*>& dragged, LiveControl& grabbed,
               QPoint pressedAt);

    /// Called when the mouse has moved, before the controls.
    void Follow(const Pointer& pointer);

    /// Whether the controls get another container.
    bool IsElsewhere() const { return container_ != home_; }
    /// Null: the form.
    LiveControl* Container() const { return container_; }
    /// Twips from a place in the present container to the same place in the other one.
    QPointF Shift() const;
    /// The controls that get the other container, in the order of the file. A control that is not
    /// over it when it is dropped stays in its own, in which it can be seen.
    std::vector<LiveControl*> Going() const;

    /// Mark the container and show the controls, which their own container hides at its edges.
    QRect Painted() const;
    void Paint(QPainter& painter, const QPalette& palette) const;

 private:
    Ground ground_;
    std::vector<LiveControl*> dragged_;
    std::vector<LiveControl*> siblings_;  // those of one container, in the order of the file
    LiveControl& grabbed_;
    LiveControl* home_;
    const LiveControl* under_;  // at the press
    LiveControl* container_;
    std::map<const LiveControl*, QPixmap> pictures_;
};

}  // namespace lumenkit::lumenform
