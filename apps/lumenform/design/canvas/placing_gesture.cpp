#include "apps/lumenform/design/canvas/placing_gesture.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "apps/lumenform/design/model/area.h"
#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/containers.h"
#include "apps/lumenform/design/model/rehome.h"
#include "apps/lumenform/design/model/stacking.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

// Returns the distance that an edge at `edge` moves when it is dragged by `dragged` twips. The grid
// begins at 0.
float Distance(double edge, double dragged, const Grid& grid, bool snaps) {
    const auto at = static_cast<float>(edge);
    const auto by = static_cast<float>(dragged);
    return snaps && by != 0 ? grid.Nearest(at + by) - at : by;
}

// Returns the guide unless the place on the grid is nearer to the mouse.
float NearerOf(float dragged, float onGrid, std::optional<float> guide, bool snaps) {
    const bool isGuide = dragged != 0 && guide &&
                         (!snaps || std::abs(*guide - dragged) <= std::abs(onGrid - dragged));
    return isGuide ? *guide : onGrid;
}

// The title of a step that puts controls into a container. A null container is the form.
QString DropTitle(const std::vector<LiveControl*>& controls, const LiveControl* container) {
    const QString what = controls.size() == 1 ? qt::ToQString(controls.front()->Name())
                                              : QObject::tr("%n controls", nullptr,
                                                            static_cast<int>(controls.size()));
    return container == nullptr
               ? QObject::tr("Move %1 to the form").arg(what)
               : QObject::tr("Move %1 into %2").arg(what, qt::ToQString(container->Name()));
}

}  // namespace

QString PlacingTitle(Edges edges, std::size_t count, const LiveControl& one) {
    if (count == 1) {
        const QString title = edges == allEdges ? QObject::tr("Move %1") : QObject::tr("Size %1");
        return title.arg(qt::ToQString(one.Name()));
    }
    const auto number = static_cast<int>(count);
    return edges == allEdges ? QObject::tr("Move %n controls", nullptr, number)
                             : QObject::tr("Size %n controls", nullptr, number);
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
    if (edges == allEdges) {
        std::vector<LiveControl*> dragged;
        for (const Target& target : targets_) {
            dragged.push_back(target.control);
        }
        drop_.emplace(ground, dragged, *grabbed_->control, pressedAt);
    }
}

void PlacingGesture::DragTo(const Pointer& pointer) {
    QPointF shift;
    if (drop_) {
        drop_->Follow(pointer);
        shift = drop_->Shift();
    }
    const QPointF dragged = ground_.map.ToTwips(pointer.at - pressedAt_);
    const host::Placement& from = grabbed_->former;
    float across = Distance((edges_.left ? from.left : from.left + from.width) + shift.x(),
                            dragged.x(), ground_.grid, pointer.snaps);
    float down = Distance((edges_.top ? from.top : from.top + from.height) + shift.y(), dragged.y(),
                          ground_.grid, pointer.snaps);
    FollowGuides(pointer);
    if (guides_) {
        const Guides::Dragged grabbed = Grabbed();
        const auto right = static_cast<float>(dragged.x());
        const auto below = static_cast<float>(dragged.y());
        across = NearerOf(right, across, guides_->Across(grabbed, right), pointer.snaps);
        down = NearerOf(below, down, guides_->Down(grabbed, below), pointer.snaps);
    }
    for (Target& target : targets_) {
        target.place = Shifted(target.former, edges_, across, down);
    }
    Move();
    if (guides_) {
        guides_->Show(Grabbed(), Moved(grabbed_->place, shift));
    }
}

LiveControl* PlacingGesture::Container() const {
    return drop_ ? drop_->Container() : ContainerOf(ground_.design, *grabbed_->control);
}

void PlacingGesture::FollowGuides(const Pointer& pointer) {
    if (!pointer.guides) {
        guides_.reset();
        return;
    }
    const LiveControl* const container = Container();
    if (guides_ && entered_ == container) {
        return;
    }
    std::vector<LiveControl*> dragged;
    for (const Target& target : targets_) {
        dragged.push_back(target.control);
    }
    guides_.emplace(ground_, std::move(dragged));
    guides_->Enter(container);
    entered_ = container;
}

Guides::Dragged PlacingGesture::Grabbed() const {
    const QPointF shift = drop_ ? drop_->Shift() : QPointF();
    return {grabbed_->control, Moved(grabbed_->former, shift), edges_};
}

void PlacingGesture::Move() const {
    for (const Target& target : targets_) {
        target.control->Move(target.place);
    }
}

void PlacingGesture::Finish() {
    if (drop_ && drop_->IsElsewhere()) {
        DropElsewhere();
        return;
    }
    const QString title = PlacingTitle(edges_, targets_.size(), *grabbed_->control);
    ground_.design.Edit(title, [this] { Move(); });
}

// The controls are at their places already.
void PlacingGesture::DropElsewhere() {
    const std::vector<LiveControl*> going = drop_->Going();
    LiveControl* const container = drop_->Container();
    const Home home{.container = container, .before = Foremost(BlockOf(ground_.design, container))};
    Rehome(ground_.design, DropTitle(going, container), going, home, Landing::SamePlace);
}

void PlacingGesture::Cancel() {
    for (const Target& target : targets_) {
        target.control->Move(target.former);
    }
}

std::optional<host::Placement> PlacingGesture::Place() const {
    return drop_ ? Moved(grabbed_->place, drop_->Shift()) : grabbed_->place;
}

QRect PlacingGesture::Painted() const {
    const QRect lines = guides_ ? guides_->Painted() : QRect();
    return drop_ ? drop_->Painted() | lines : lines;
}

void PlacingGesture::Paint(QPainter& painter, const QPalette& palette) const {
    if (drop_) {
        drop_->Paint(painter, palette);
    }
    if (guides_) {
        guides_->Paint(painter, palette);
    }
}

}  // namespace lumenkit::lumenform
