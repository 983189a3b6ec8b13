#include "runtime/qt/embedded_control.h"

#include <memory>

namespace lumenkit::qt {

std::unique_ptr<host::EmbeddedControl> EmbedControl(Elements& elements, const host::Design& design,
                                                    const ClassDescriptor& type) {
    return std::make_unique<EmbeddedControl>(elements, design, type);
}

EmbeddedControl::EmbeddedControl(Elements& elements, const host::Design& design,
                                 const ClassDescriptor& type)
    : BasicConstituent(elements, design),
      ambient_([](TextView name, float points) { return std::make_shared<Font>(name, points); },
               elements.UserMode()) {
    ControlSite& site = *this;
    AdoptHidden(std::make_unique<HostedControl>(
        elements.GetContext(), type, site,
        Placing{.name = design.name, .placement = design.placement, .visible = design.visible},
        &ParentFor(elements, design)));
    Inner().StartNew();
}

void EmbeddedControl::Move(const host::Placement& placement) {
    Inner().Move(placement);
    BasicConstituent::Move(placement);
}

void EmbeddedControl::SetVisible(bool visible) {
    BasicConstituent::SetVisible(visible);
    Inner().SetShown(visible);
}

void EmbeddedControl::Refresh() {
    Inner().Drawing().Refresh();
}

}  // namespace lumenkit::qt
