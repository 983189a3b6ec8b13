#include "apps/lumenform/design/canvas/placing_gesture.h"

#include <algorithm>

#include "apps/lumenform/design/canvas/titles.h"
#include "apps/lumenform/design/model/arrange.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

// Returns the distance that an edge at `edge` moves when it is dragged by `dragged` twips.
float Distance(float edge, float dragged, const Grid& grid, bool snaps) {
    return snaps && dragged != 0 ? grid.Nearest(edge + dragged) - edge : dragged;
}

}  // namespace

PlacingGesture::PlacingGesture(const Ground& ground, const LiveControl& grabbed, Edges edges,
                               QPoint pressedAt)
    : ground_(ground), edges_(edges), pressedAt_(pressedAt) {
    for (LiveControl* control : OutermostSelected(ground.design)) {
        targets_.push_back({control, control->Place(), control->Place()});
    }
    const auto found = std::ranges::find_if(targets_, [&](const Target& target) {
        return target.control == &grabbed ||
               target.control->Widget().isAncestorOf(&grabbed.Widget());
    });
    grabbed_ = &*found;
}

void PlacingGesture::DragTo(QPoint at, bool snaps) {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const QPoint dragged = at - pressedAt_;
    const host::Placement& from = grabbed_->former;
    const float across = Distance(edges_.left ? from.left : from.left + from.width,
                                  static_cast<float>(dragged.x() * twips.x), ground_.grid, snaps);
    const float down = Distance(edges_.top ? from.top : from.top + from.height,
                                static_cast<float>(dragged.y() * twips.y), ground_.grid, snaps);
    for (Target& target : targets_) {
        target.place = Shifted(target.former, edges_, across, down);
        target.control->Move(target.place);
    }
}

void PlacingGesture::Finish() {
    const QString title = edges_ == allEdges ? MoveTitle(targets_.size(), *grabbed_->control)
                                             : SizeTitle(targets_.size(), *grabbed_->control);
    ground_.design.Edit(title, [this] {
        for (const Target& target : targets_) {
            target.control->Move(target.place);
        }
    });
}

void PlacingGesture::Cancel() {
    for (const Target& target : targets_) {
        target.control->Move(target.former);
    }
}

}  // namespace lumenkit::lumenform
