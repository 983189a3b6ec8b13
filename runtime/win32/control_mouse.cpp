#include "runtime/win32/control_mouse.h"

#include "runtime/win32/control_calls.h"
#include "runtime/win32/mouse.h"

namespace lumenkit::win32 {

namespace {

enum class Action { None, Move, Down, Double, Up };

Action ActionOf(UINT message) {
    switch (message) {
        case WM_MOUSEMOVE:
            return Action::Move;
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
            return Action::Down;
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDBLCLK:
        case WM_MBUTTONDBLCLK:
            return Action::Double;
        case WM_LBUTTONUP:
        case WM_RBUTTONUP:
        case WM_MBUTTONUP:
            return Action::Up;
        default:
            return Action::None;
    }
}

}  // namespace

bool ControlMouse::IsMouse(UINT message) {
    return ActionOf(message) != Action::None;
}

void ControlMouse::Handle(Control& control, UINT message, WPARAM wParam, LPARAM lParam) {
    host::MouseArguments mouse = MouseArgumentsOf(message, wParam, lParam, resolution_);
    switch (ActionOf(message)) {
        case Action::Move:
            Tell(control, &Control::UserControl_MouseMove, mouse);
            return;
        case Action::Down:
            ButtonGoesDown(control, mouse);
            return;
        case Action::Double:
            ButtonIsClickedAgain(control, mouse);
            return;
        case Action::Up:
            ButtonGoesUp(control, mouse);
            return;
        case Action::None:
            return;
    }
}

void ControlMouse::ButtonGoesDown(Control& control, host::MouseArguments& mouse) {
    if (TakeMouse()) {
        pressed_ = static_cast<std::int16_t>(pressed_ | mouse.button);
        Tell(control, &Control::UserControl_MouseDown, mouse);
    }
}

void ControlMouse::ButtonIsClickedAgain(Control& control, host::MouseArguments& mouse) {
    if (mouse.button == middleButton) {
        ButtonGoesDown(control, mouse);
    } else if (TakeMouse()) {
        Tell(control, &Control::UserControl_DblClick);
    }
}

void ControlMouse::ButtonGoesUp(Control& control, host::MouseArguments& mouse) {
    const bool isClick = Lift(mouse.button) && IsInside(mouse) && mouse.button != middleButton;
    const Window::Watch watch(window_);
    Tell(control, &Control::UserControl_MouseUp, mouse);
    if (isClick && !watch.IsGone() && surface_.Enabled()) {
        Tell(control, &Control::UserControl_Click);
    }
}

// Directs the mouse and the keyboard to the control. Returns whether the control still exists.
bool ControlMouse::TakeMouse() {
    SetCapture(window_.Handle());
    const Window::Watch watch(window_);
    if (!focus_.IsInside() && !focus_.IsOutOfUse()) {
        focus_.Take(false);
    }
    return !watch.IsGone();
}

bool ControlMouse::IsInside(const host::MouseArguments& mouse) const {
    return mouse.x >= 0 && mouse.y >= 0 && mouse.x < surface_.ScaleWidth() &&
           mouse.y < surface_.ScaleHeight();
}

// Returns whether the button went down on the surface. The last button to go up releases the mouse.
bool ControlMouse::Lift(std::int16_t button) {
    const bool wasPressed = (pressed_ & button) != 0;
    pressed_ = static_cast<std::int16_t>(pressed_ & ~button);
    if (pressed_ == 0 && GetCapture() == window_.Handle()) {
        ReleaseCapture();
    }
    return wasPressed;
}

}  // namespace lumenkit::win32
