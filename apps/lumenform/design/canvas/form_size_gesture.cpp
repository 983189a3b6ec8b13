#include "apps/lumenform/design/canvas/form_size_gesture.h"

#include <QLayout>
#include <algorithm>

#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

host::Placement InsideOfForm(const FormDesign& design) {
    const FormSize size = ClientSizeOf(design);
    return {.width = size.width, .height = size.height};
}

}  // namespace

FormSizeGesture::FormSizeGesture(const Ground& ground, Edges edges, QPoint pressedAt)
    : ground_(ground),
      edges_(edges),
      pressedAt_(pressedAt),
      former_(InsideOfForm(ground.design)),
      place_(former_) {}

void FormSizeGesture::DragTo(const Pointer& pointer) {
    const QPointF dragged = ground_.map.ToTwips(pointer.at - pressedAt_);
    place_ =
        Shifted(former_, edges_, static_cast<float>(dragged.x()), static_cast<float>(dragged.y()));
    if (pointer.snaps && place_.width != former_.width) {
        place_.width = ground_.grid.Nearest(place_.width);
    }
    if (pointer.snaps && place_.height != former_.height) {
        place_.height = ground_.grid.Nearest(place_.height);
    }
    Show(place_);
}

void FormSizeGesture::Finish() {
    ResizeForm(ground_.design, {place_.width, place_.height});
}

void FormSizeGesture::Cancel() {
    Show(former_);
}

void FormSizeGesture::Show(const host::Placement& place) const {
    FormView& view = ground_.design.View();
    view.Client().setFixedSize(qt::ToPixels(place).size().expandedTo(QSize(1, 1)));
    view.layout()->activate();
}

}  // namespace lumenkit::lumenform
