#include "runtime/memory/check_box.h"

#include "frame/host/accepted_values.h"

namespace lumenkit::memory {

CheckBox::CheckBox(Elements& elements, const host::CaptionDesign& design, host::ClickEvents& events)
    : BasicCaptioned(elements, u"CheckBox", design, design.caption), events_(events) {}

std::int16_t CheckBox::CheckState() const {
    Call(u"CheckState");
    return state_;
}

void CheckBox::SetCheckState(std::int16_t state) {
    Call(u"SetCheckState");
    Change(AcceptedNumber<std::int16_t>(state, 0, 2));
}

PropertyList CheckBox::Properties() const {
    PropertyList list = BasicCaptioned::Properties();
    list.emplace_back(u"Value", state_);
    return list;
}

void CheckBox::ReceiveClick() {
    Change(state_ == 0 ? 1 : 0);
}

void CheckBox::Change(std::int16_t state) {
    if (state != state_) {
        state_ = state;
        events_.Click();
    }
}

}  // namespace lumenkit::memory
