#include "apps/lumenform/design/canvas/band_gesture.h"

#include <utility>

namespace lumenkit::lumenform {

BandGesture::BandGesture(const Ground& ground, const LiveControl* container, QPoint pressedAt,
                         bool adds)
    : ground_(ground), container_(container), pressedAt_(pressedAt), adds_(adds) {}

void BandGesture::DragTo(const Pointer& pointer) {
    band_ = QRect(pressedAt_, pointer.at).normalized();
}

void BandGesture::Finish() {
    std::vector<LiveControl*> selected;
    if (adds_) {
        selected = ground_.design.Selected();
    }
    for (LiveControl* control : ground_.map.Touched(container_, band_)) {
        if (!adds_ || !ground_.design.IsSelected(*control)) {
            selected.push_back(control);
        }
    }
    ground_.design.Select(std::move(selected));
}

}  // namespace lumenkit::lumenform
