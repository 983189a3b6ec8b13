#pragma once

#include <QString>
#include <cstddef>
#include <optional>
#include <vector>

#include "apps/lumenform/design/canvas/drop_target.h"
#include "apps/lumenform/design/canvas/edges.h"
#include "apps/lumenform/design/canvas/gesture.h"
#include "apps/lumenform/design/canvas/guides.h"

namespace lumenkit::lumenform {

/// The title of a step of the history that moves or sizes `count` controls. A single control is
/// named: `one`.
QString PlacingTitle(Edges edges, std::size_t count, const LiveControl& one);

/// Moves or sizes the selected controls by the same distance as the control under the mouse. Only
/// that control snaps to the grid and to guides, whichever is nearer. Controls that are moved over
/// another container are put into it: see DropTarget.
class PlacingGesture final : public Gesture {
 public:
    /// `grabbed` is one of the selected controls.
    PlacingGesture(const Ground& ground, const LiveControl& grabbed, Edges edges, QPoint pressedAt);

    void DragTo(const Pointer& pointer) override;
    void Finish() override;
    void Cancel() override;
    std::optional<host::Placement> Place() const override;
    QRect Painted() const override;
    void Paint(QPainter& painter, const QPalette& palette) const override;

 private:
    struct Target {
        LiveControl* control = nullptr;
        host::Placement former;
        host::Placement place;
    };

    void FollowGuides(const Pointer& pointer);
    Guides::Dragged Grabbed() const;
    LiveControl* Container() const;
    void Move() const;
    void DropElsewhere();

    Ground ground_;
    Edges edges_;
    QPoint pressedAt_;
    std::vector<Target> targets_;
    const Target* grabbed_ = nullptr;
    std::optional<DropTarget> drop_;        // empty while sizing
    std::optional<Guides> guides_;          // empty while no drag uses them
    const LiveControl* entered_ = nullptr;  // the container with these guides
};

}  // namespace lumenkit::lumenform
