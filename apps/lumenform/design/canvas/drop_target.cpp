#include "apps/lumenform/design/canvas/drop_target.h"

#include <algorithm>
#include <utility>

#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/containers.h"

namespace lumenkit::lumenform {

namespace {

constexpr int markWidth = 3;

}  // namespace

DropTarget::DropTarget(const Ground& ground, std::vector<LiveControl*> dragged,
                       const LiveControl& grabbed, QPoint pressedAt)
    : ground_(ground),
      dragged_(std::move(dragged)),
      grabbed_(grabbed),
      home_(ContainerOf(ground.design, grabbed)),
      under_(ground.map.ContainerAt(pressedAt, dragged_)),
      container_(ContainerOf(ground.design, grabbed)) {}

void DropTarget::Follow(const Pointer& pointer) {
    LiveControl* const own = ContainerOf(ground_.design, grabbed_);
    LiveControl* const under = ground_.map.ContainerAt(pointer.at, dragged_);
    const bool isOutside = !ground_.map.ClientRect().contains(pointer.at);
    container_ = pointer.keepsContainer || isOutside || under == under_ ? own : under;
    if (IsElsewhere() && pictures_.empty()) {
        for (LiveControl* const control : Going()) {
            pictures_.emplace(control, control->Widget().grab());
        }
    }
}

QPointF DropTarget::Shift() const {
    const QPointF shift = OriginOf(ground_.design, home_) - OriginOf(ground_.design, container_);
    return shift.toPoint();
}

std::vector<LiveControl*> DropTarget::Going() const {
    std::vector<LiveControl*> going;
    if (!IsElsewhere()) {
        return going;
    }
    const QRect room = ground_.map.RoomOf(container_);
    for (const auto& control : ground_.design.View().Controls()) {
        const bool isDragged = std::ranges::find(dragged_, control.get()) != dragged_.end();
        const bool goes = control.get() == &grabbed_ ||
                          (isDragged && ContainerOf(ground_.design, *control) == home_ &&
                           ground_.map.RectOf(*control).intersects(room));
        if (goes) {
            going.push_back(control.get());
        }
    }
    return going;
}

QRect DropTarget::Painted() const {
    QRect painted;
    if (IsElsewhere()) {
        painted = ground_.map.RoomOf(container_);
        for (const LiveControl* const control : Going()) {
            painted |= ground_.map.RectOf(*control);
        }
    }
    return painted.adjusted(-markWidth, -markWidth, markWidth, markWidth);
}

void DropTarget::Paint(QPainter& painter, const QPalette& palette) const {
    if (!IsElsewhere()) {
        return;
    }
    constexpr double strength = 0.75;
    constexpr int tint = 24;
    painter.save();
    const QRect room = ground_.map.RoomOf(container_);
    QColor color = palette.color(QPalette::Active, QPalette::Highlight);
    painter.setPen(QPen(color, markWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(room.adjusted(1, 1, -2, -2));
    color.setAlpha(tint);
    painter.fillRect(room, color);
    painter.setOpacity(strength);
    for (const LiveControl* const control : Going()) {
        if (const auto picture = pictures_.find(control); picture != pictures_.end()) {
            painter.drawPixmap(ground_.map.RectOf(*control).topLeft(), picture->second);
        }
    }
    painter.restore();
}

}  // namespace lumenkit::lumenform
