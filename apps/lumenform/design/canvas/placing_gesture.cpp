#include "apps/lumenform/design/canvas/placing_gesture.h"

#include <algorithm>

#include "apps/lumenform/design/model/arrange.h"
#include "runtime/qt/pixels.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

// Returns the distance that an edge at `edge` moves when it is dragged by `dragged` twips.
float Distance(float edge, float dragged, const Grid& grid, bool snaps) {
    return snaps && dragged != 0 ? grid.Nearest(edge + dragged) - edge : dragged;
}

}  // namespace

QString PlacingTitle(Edges edges, std::size_t count, const LiveControl& one) {
    if (count == 1) {
        const QString title = edges == allEdges ? QObject::tr("Move %1") : QObject::tr("Size %1");
        return title.arg(qt::ToQString(one.Name()));
    }
    const QString title =
        edges == allEdges ? QObject::tr("Move %1 controls") : QObject::tr("Size %1 controls");
    return title.arg(count);
}

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
    const QString title = PlacingTitle(edges_, targets_.size(), *grabbed_->control);
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
