#include "runtime/memory/embedded_control.h"

namespace lumenkit::memory {

namespace {

Placing PlacingOf(const host::Design& design, bool userMode) {
    return {.name = design.name,
            .userMode = userMode,
            .left = design.placement.left,
            .top = design.placement.top,
            .width = design.placement.width,
            .height = design.placement.height,
            .visible = design.visible,
            .isLogged = false};
}

}  // namespace

std::unique_ptr<host::EmbeddedControl> EmbedControl(Elements& elements, const host::Design& design,
                                                    const ClassDescriptor& type) {
    return std::make_unique<EmbeddedControl>(elements, design, type);
}

EmbeddedControl::EmbeddedControl(Elements& elements, const host::Design& design,
                                 const ClassDescriptor& type)
    : BasicConstituent(elements, u"EmbeddedControl", design),
      inner_(elements.GetForm(), type, PlacingOf(design, elements.UserMode())) {
    inner_.StartNew();
}

void EmbeddedControl::Move(const host::Placement& placement) {
    BasicConstituent::Move(placement);
    inner_.Move(placement);
}

void EmbeddedControl::SetVisible(bool visible) {
    BasicConstituent::SetVisible(visible);
    inner_.SetShown(visible);
}

void EmbeddedControl::Refresh() {
    BasicConstituent::Refresh();
    inner_.Paint();
}

Object& EmbeddedControl::Automation() {
    Call(u"Automation");
    return inner_.Automation();
}

}  // namespace lumenkit::memory
