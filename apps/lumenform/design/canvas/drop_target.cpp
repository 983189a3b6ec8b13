#include "apps/lumenform/design/canvas/drop_target.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

#include "apps/lumenform/design/canvas/zoomed_view.h"
#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/containers.h"

namespace lumenkit::lumenform {

namespace {

constexpr int markWidth = 3;

}  // namespace

DropTarget::DropTarget(const Ground& ground, const std::vector<LiveControl*>& dragged,
                       LiveControl& grabbed, QPoint pressedAt)
    : ground_(ground),
      dragged_(dragged),
      grabbed_(grabbed),
      home_(ContainerOf(ground.design, grabbed)),
      under_(ground.map.ContainerAt(pressedAt, dragged)),
      container_(home_) {
    const std::unordered_set<const LiveControl*> all(dragged.begin(), dragged.end());
    for (const auto& control : ground.design.View().Controls()) {
        if (all.contains(control.get()) &&
            control->Widget().parentWidget() == grabbed.Widget().parentWidget()) {
            siblings_.push_back(control.get());
        }
    }
}

void DropTarget::Follow(const Pointer& pointer) {
    LiveControl* const under = ground_.map.ContainerAt(pointer.at, dragged_);
    const bool isOutside = !ground_.map.ClientRect().contains(pointer.at);
    container_ = pointer.keepsContainer || isOutside || under == under_ ? home_ : under;
    for (LiveControl* const control : Going()) {
        if (!pictures_.contains(control)) {
            QWidget& widget = control->Widget();
            const double scale = ground_.map.GetZoom().Factor() * widget.devicePixelRatioF();
            pictures_.emplace(control, PictureOf(widget, scale));
        }
    }
}

QPointF DropTarget::Shift() const {
    const QPointF shift = OriginOf(ground_.design, home_) - OriginOf(ground_.design, container_);
    return shift.toPoint();
}

std::vector<LiveControl*> DropTarget::Going() const {
    std::vector<LiveControl*> going;
    if (IsElsewhere()) {
        const QRect room = ground_.map.RoomOf(container_);
        std::ranges::copy_if(siblings_, std::back_inserter(going), [&](LiveControl* control) {
            return control == &grabbed_ || ground_.map.RectOf(*control).intersects(room);
        });
    }
    return going;
}

QRect DropTarget::Painted() const {
    if (!IsElsewhere()) {
        return {};
    }
    QRect painted = ground_.map.RoomOf(container_);
    for (const LiveControl* const control : Going()) {
        painted |= ground_.map.RectOf(*control);
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
            painter.drawPixmap(ground_.map.RectOf(*control), picture->second);
        }
    }
    painter.restore();
}

}  // namespace lumenkit::lumenform
