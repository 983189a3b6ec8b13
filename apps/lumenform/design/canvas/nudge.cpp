#include "apps/lumenform/design/canvas/nudge.h"

#include <optional>

#include "apps/lumenform/design/canvas/edges.h"
#include "apps/lumenform/design/canvas/placing_gesture.h"
#include "apps/lumenform/design/canvas/resize_form.h"
#include "apps/lumenform/design/model/arrange.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

std::optional<QPoint> Direction(int key) {
    switch (key) {
        case Qt::Key_Left:
            return QPoint(-1, 0);
        case Qt::Key_Right:
            return QPoint(1, 0);
        case Qt::Key_Up:
            return QPoint(0, -1);
        case Qt::Key_Down:
            return QPoint(0, 1);
        default:
            return std::nullopt;
    }
}

void NudgeForm(FormDesign& design, float across, float down) {
    const FormSize size = ClientSizeOf(design);
    const host::Placement place = Shifted({.width = size.width, .height = size.height},
                                          {.right = true, .bottom = true}, across, down);
    ResizeForm(design, {place.width, place.height});
}

void NudgeControls(FormDesign& design, Edges edges, float across, float down) {
    const std::vector<LiveControl*> controls = OutermostSelected(design);
    const auto shift = [&] {
        for (LiveControl* control : controls) {
            control->Move(Shifted(control->Place(), edges, across, down));
        }
    };
    design.Edit(PlacingTitle(edges, controls.size(), *controls.back()), shift, Merging::Nudges);
}

}  // namespace

bool Nudge(const Ground& ground, const QKeyEvent& key) {
    const std::optional<QPoint> direction = Direction(key.key());
    if (!direction) {
        return false;
    }
    const bool finely = key.modifiers().testFlag(Qt::ControlModifier);
    const bool sizes = key.modifiers().testFlag(Qt::ShiftModifier);
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const auto distance = [&](int way, double pixel) {
        return static_cast<float>(way * (finely ? pixel : ground.grid.step));
    };
    const float across = distance(direction->x(), twips.x);
    const float down = distance(direction->y(), twips.y);
    if (!ground.design.Selected().empty()) {
        NudgeControls(ground.design, sizes ? Edges{.right = true, .bottom = true} : allEdges,
                      across, down);
    } else if (sizes && ground.design.IsFormSelected()) {
        NudgeForm(ground.design, across, down);
    }
    return true;
}

}  // namespace lumenkit::lumenform
