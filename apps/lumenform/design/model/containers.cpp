#include "apps/lumenform/design/model/containers.h"

#include <QCoreApplication>
#include <algorithm>

#include "apps/lumenform/design/model/area.h"
#include "apps/lumenform/design/model/arrange.h"
#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

// The origin of places in a control, in twips from its upper left corner: the border of a picture
// box.
QPointF InnerOrigin(const LiveControl& container) {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const QPoint origin = container.Inside().widget.mapTo(&container.Widget(), QPoint());
    return {origin.x() * twips.x, origin.y() * twips.y};
}

// Finds the areas of containers that are seen. Each area is found once.
class SeenAreas {
 public:
    explicit SeenAreas(const FormDesign& design) : design_(design), containers_(design) {}

    LiveControl* ContainerOf(const LiveControl& control) const { return containers_.Of(control); }

    bool IsOut(const LiveControl& control) {
        const LiveControl* const container = ContainerOf(control);
        const bool docks = container == nullptr && control.DockingEdge() != 0;
        return !docks && !RectOf(control.Place()).intersects(Of(container));
    }

    // Returns the seen part of a container in its twips, or all of it if nothing is seen.
    const QRectF& Of(const LiveControl* container) {
        const auto found = areas_.find(container);
        return found == areas_.end() ? areas_.emplace(container, Find(container)).first->second
                                     : found->second;
    }

 private:
    // The recursion is as deep as the controls are nested, which the parser limits.
    QRectF Find(const LiveControl* container) {
        const QRectF room = RoomOf(design_, container);
        if (container == nullptr) {
            return room;
        }
        const host::Placement place = container->Place();
        const QPointF origin = QPointF(place.left, place.top) + InnerOrigin(*container);
        const QRectF seen = room & Of(ContainerOf(*container)).translated(-origin);
        return seen.isEmpty() ? room : seen;
    }

    const FormDesign& design_;
    Containers containers_;
    std::unordered_map<const LiveControl*, QRectF> areas_;
};

}  // namespace

Containers::Containers(const FormDesign& design) {
    for (const auto& control : design.View().Controls()) {
        for (const Surroundings* const room : control->Rooms()) {
            rooms_.emplace(&room->widget, control.get());
        }
    }
}

LiveControl* Containers::Of(const LiveControl& control) const {
    const auto found = rooms_.find(control.Widget().parentWidget());
    return found == rooms_.end() ? nullptr : found->second;
}

QPointF OriginOf(const FormDesign& design, const LiveControl* container) {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const QPoint origin =
        InsideOf(design, container).widget.mapTo(&design.View().Client(), QPoint());
    return {origin.x() * twips.x, origin.y() * twips.y};
}

QRectF RoomOf(const FormDesign& design, const LiveControl* container) {
    if (container == nullptr) {
        return {QPointF(), design.View().Inside().room};
    }
    const host::Placement place = container->Place();
    const QPointF border = InnerOrigin(*container);
    return {0, 0, std::max(place.width - 2 * border.x(), 0.0),
            std::max(place.height - 2 * border.y(), 0.0)};
}

std::vector<LiveControl*> OutOfView(const FormDesign& design) {
    SeenAreas areas(design);
    std::vector<LiveControl*> found;
    for (const auto& control : design.View().Controls()) {
        if (areas.IsOut(*control)) {
            found.push_back(control.get());
        }
    }
    return found;
}

void BringIntoView(FormDesign& design) {
    if (design.Selected().empty()) {
        design.Select(OutOfView(design));
    }
    const std::vector<LiveControl*> controls = OutermostSelected(design);
    SeenAreas areas(design);
    design.Edit(QCoreApplication::translate("containers", "Bring into view"), [&] {
        for (LiveControl* const control : controls) {
            const QRectF& area = areas.Of(areas.ContainerOf(*control));
            const host::Placement place = control->Place();
            if (const QPointF step = StepInside(RectOf(place), area); !step.isNull()) {
                control->Move(Moved(place, step));
            }
        }
    });
}

}  // namespace lumenkit::lumenform
