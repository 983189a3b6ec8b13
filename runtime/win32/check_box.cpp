#include "runtime/win32/check_box.h"

#include "frame/host/accepted_values.h"

namespace lumenkit::win32 {

CheckBox::CheckBox(const Elements& elements, const host::CaptionDesign& design,
                   host::ClickEvents& events)
    : BasicCaptioned(elements, {.className = L"BUTTON", .style = BS_3STATE | WS_TABSTOP}, design,
                     design.caption, design.accessKey),
      events_(events) {}

void CheckBox::SetCheckState(std::int16_t state) {
    Change(AcceptedNumber<std::int16_t>(state, 0, 2));
}

void CheckBox::Change(std::int16_t state) {
    if (state != state_) {
        state_ = state;
        Ask(BM_SETCHECK, static_cast<WPARAM>(state));  // BM_SETCHECK uses the same numbers
        events_.Click();
    }
}

std::optional<LRESULT> CheckBox::HandleNotification(UINT message, WPARAM wParam,
                                                    LPARAM /*lParam*/) {
    switch (message) {
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORSTATIC:
            return AnswerColors(wParam, Color::ButtonText, Color::ButtonFace);
        case WM_COMMAND:
            if (HIWORD(wParam) == BN_CLICKED) {
                Change(state_ == 0 ? 1 : 0);
            }
            return 0;
        default:
            return std::nullopt;
    }
}

}  // namespace lumenkit::win32
