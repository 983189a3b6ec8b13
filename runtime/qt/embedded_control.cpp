#include "runtime/qt/embedded_control.h"

#include <memory>

namespace lumenkit::qt {

EmbeddedControl::EmbeddedControl(Constituents& owner, const host::Design& design,
                                 const ClassDescriptor& type)
    : BasicConstituent(owner, design),
      ambient_([](TextView name, float points) { return std::make_shared<Font>(name, points); },
               owner.UserMode()) {
    ControlSite& site = *this;
    AdoptHidden(std::make_unique<HostedControl>(
        owner.GetContext(), type, site,
        Placing{.name = design.name, .placement = design.placement, .visible = design.visible},
        &ParentFor(owner, design)));
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
