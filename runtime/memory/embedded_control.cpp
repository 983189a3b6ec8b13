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

EmbeddedControl::EmbeddedControl(Constituents& owner, const host::Design& design,
                                 const ClassDescriptor& type, bool userMode)
    : BasicConstituent(owner, u"EmbeddedControl", design),
      inner_(owner.GetForm(), type, PlacingOf(design, userMode)) {
    inner_.StartNew();
}

void EmbeddedControl::Move(const host::Placement& placement) {
    BasicConstituent::Move(placement);
    inner_.Move(placement.left, placement.top);
    inner_.Resize(placement.width, placement.height);
}

void EmbeddedControl::SetVisible(bool visible) {
    BasicConstituent::SetVisible(visible);
    if (visible) {
        inner_.Show();
    } else {
        inner_.Hide();
    }
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
