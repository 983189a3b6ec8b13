#include "apps/lumenform/design/canvas/drawing_gesture.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "apps/lumenform/design/model/new_control.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

DrawingGesture::DrawingGesture(const Ground& ground, Text className, QPoint pressedAt, Done done)
    : ground_(ground),
      className_(std::move(className)),
      container_(ground.map.ContainerAt(pressedAt)),
      origin_(ground.map.OriginOf(container_)),
      pressedAt_(pressedAt),
      done_(std::move(done)) {}

void DrawingGesture::DragTo(const Pointer& pointer) {
    const auto nearest = [&](double twips) {
        const auto edge = static_cast<float>(twips);
        return pointer.snaps ? ground_.grid.Nearest(edge) : edge;
    };
    const QPointF from = TwipsAt(pressedAt_);
    const QPointF to = TwipsAt(pointer.at);
    const float left = nearest(std::min(from.x(), to.x()));
    const float top = nearest(std::min(from.y(), to.y()));
    place_ = {.left = left,
              .top = top,
              .width = nearest(std::max(from.x(), to.x())) - left,
              .height = nearest(std::max(from.y(), to.y())) - top};
    isDragged_ = isDragged_ || pointer.at != pressedAt_;
}

void DrawingGesture::Finish() {
    const host::Placement usual = UsualPlace(ground_.design.Context().classes, className_);
    if (!isDragged_ || place_.width == 0 || place_.height == 0) {
        place_.width = usual.width;
        place_.height = usual.height;
    }
    done_(container_, place_);
}

QRect DrawingGesture::Band() const {
    return qt::ToPixels(place_).translated(origin_);
}

QPointF DrawingGesture::TwipsAt(QPoint at) const {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const QPoint inside = at - origin_;
    return {inside.x() * twips.x, inside.y() * twips.y};
}

}  // namespace lumenkit::lumenform
