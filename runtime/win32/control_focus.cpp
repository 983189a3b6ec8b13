#include "runtime/win32/control_focus.h"

#include <utility>

#include "runtime/win32/keyboard.h"

namespace lumenkit::win32 {

// While the focus moves, the platform already reports its new position.
void ControlFocus::FocusMoved() {
    const bool inside = HasFocusInside(window_.Handle());
    if (std::exchange(isInside_, inside) != inside) {
        site_.FocusChanged(inside);
    }
}

void ControlFocus::PassOn(HWND former) const {
    const HWND window = window_.Handle();
    const bool wasGivenAway = former != nullptr && IsChild(window, former) != FALSE;
    if (!wasGivenAway && surface_.Enabled()) {
        FocusFirst(window, false);
    }
}

bool ControlFocus::IsOutOfUse() const {
    return AreStopsOutOfUse(window_.Handle());
}

void ControlFocus::Take(bool last) {
    const HWND window = window_.Handle();
    if (window != nullptr && surface_.Enabled() && !FocusFirst(window, last)) {
        SetFocus(window_.Handle());
    }
}

}  // namespace lumenkit::win32
