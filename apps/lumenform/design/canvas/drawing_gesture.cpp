#include "apps/lumenform/design/canvas/drawing_gesture.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "apps/lumenform/design/model/new_control.h"

namespace lumenkit::lumenform {

DrawingGesture::DrawingGesture(const Ground& ground, Text className, QPoint pressedAt, Done done)
    : ground_(ground),
      className_(std::move(className)),
      container_(ground.map.ContainerAt(pressedAt)),
      pressedAt_(pressedAt),
      done_(std::move(done)),
      isLine_(IsDrawnAsLine(className_)) {}

void DrawingGesture::DragTo(const Pointer& pointer) {
    const auto nearest = [&](double twips) {
        const auto edge = static_cast<float>(twips);
        return pointer.snaps ? ground_.grid.Nearest(edge) : edge;
    };
    const QPointF from = ground_.map.TwipsAt(pressedAt_, container_);
    const QPointF to = ground_.map.TwipsAt(pointer.at, container_);
    const float left = nearest(std::min(from.x(), to.x()));
    const float top = nearest(std::min(from.y(), to.y()));
    place_ = {.left = left,
              .top = top,
              .width = nearest(std::max(from.x(), to.x())) - left,
              .height = nearest(std::max(from.y(), to.y())) - top};
    start_ = {.right = from.x() > to.x(), .bottom = from.y() > to.y()};
    isDragged_ = isDragged_ || pointer.at != pressedAt_;
}

void DrawingGesture::Finish() {
    if (!isDragged_ || IsTooSmall()) {
        const host::Placement usual = UsualPlace(ground_.design, className_);
        place_.width = usual.width;
        place_.height = usual.height;
        start_ = {};
    }
    done_(container_, place_, start_);
}

// A line may be horizontal or vertical.
bool DrawingGesture::IsTooSmall() const {
    return isLine_ ? place_.width == 0 && place_.height == 0
                   : place_.width == 0 || place_.height == 0;
}

QRect DrawingGesture::DrawnRect() const {
    return ground_.map.RectOf(place_, container_);
}

QRect DrawingGesture::Band() const {
    return isLine_ ? QRect() : DrawnRect();
}

QRect DrawingGesture::Painted() const {
    constexpr int reach = 2;
    return isLine_ ? DrawnRect().adjusted(-reach, -reach, reach, reach) : QRect();
}

void DrawingGesture::Paint(QPainter& painter, const QPalette& palette) const {
    if (!isLine_) {
        return;
    }
    const QRect rect = DrawnRect();
    painter.save();
    painter.setPen(palette.color(QPalette::Active, QPalette::Highlight));
    painter.setRenderHint(QPainter::Antialiasing, place_.width != 0 && place_.height != 0);
    if (start_.right == start_.bottom) {
        painter.drawLine(rect.topLeft(), rect.topLeft() + QPoint(rect.width(), rect.height()));
    } else {
        painter.drawLine(rect.topLeft() + QPoint(0, rect.height()),
                         rect.topLeft() + QPoint(rect.width(), 0));
    }
    painter.restore();
}

}  // namespace lumenkit::lumenform
