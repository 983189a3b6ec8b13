#include "apps/lumenform/form_view/likeness/docking.h"

#include <algorithm>
#include <functional>

#include "runtime/qt/pixels.h"

namespace lumenkit::lumenform {

namespace {

enum Edge : std::int32_t { Top = 1, Bottom = 2, Left = 3, Right = 4 };

using Controls = std::vector<LiveControl*>;

// Returns the controls at an edge, from the edge inwards.
Controls AtEdge(const Controls& controls, Edge edge) {
    Controls found;
    std::ranges::copy_if(controls, std::back_inserter(found), [edge](const LiveControl* control) {
        return control->DockingEdge() == edge && !control->Widget().isHidden();
    });
    const float host::Placement::*const start =
        edge == Top || edge == Bottom ? &host::Placement::top : &host::Placement::left;
    std::ranges::stable_sort(
        found, {}, [start](const LiveControl* control) { return control->Place().*start; });
    if (edge == Bottom || edge == Right) {
        std::ranges::reverse(found);
    }
    return found;
}

}  // namespace

void DockControls(const Controls& controls, QSize form) {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    host::Placement room{.width = static_cast<float>(form.width() * twips.x),
                         .height = static_cast<float>(form.height() * twips.y)};
    for (LiveControl* control : AtEdge(controls, Top)) {
        const float height = control->Place().height;
        control->Dock({room.left, room.top, room.width, height});
        room.top += height;
        room.height = std::max(room.height - height, 0.0F);
    }
    for (LiveControl* control : AtEdge(controls, Bottom)) {
        const float height = control->Place().height;
        control->Dock({room.left, room.top + room.height - height, room.width, height});
        room.height = std::max(room.height - height, 0.0F);
    }
    for (LiveControl* control : AtEdge(controls, Left)) {
        const float width = control->Place().width;
        control->Dock({room.left, room.top, width, room.height});
        room.left += width;
        room.width = std::max(room.width - width, 0.0F);
    }
    for (LiveControl* control : AtEdge(controls, Right)) {
        const float width = control->Place().width;
        control->Dock({room.left + room.width - width, room.top, width, room.height});
        room.width = std::max(room.width - width, 0.0F);
    }
}

}  // namespace lumenkit::lumenform
